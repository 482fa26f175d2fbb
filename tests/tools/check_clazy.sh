#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs clazy over the code with windows. Its time goes into the window library's headers, so that a
# folder is looked at as one file; where that finds anything or does not compile, each file is looked
# at alone, and that counts. Usage: check_clazy.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
cd "$1"
export found=$2/clazy
mkdir -p "$found"
# Of the second level what finds faults; no class here has signals of its own, or is copied.
export checks=level0,level1,base-class-event,virtual-call-ctor,old-style-connect,static-pmf
# The sanitizer and warning options belong to the other compiler.
system=$(grep -ohE -- '-isystem [^ "]+' "$2/compile_commands.json" | sort -u | tr '\n' ' ')
export options="-std=c++20 -fPIC -DQT_NO_KEYWORDS -I. -I$2 $system"

# Usage: look FILE REPORT
look() {
  # shellcheck disable=SC2086
  clazy-standalone --checks=$checks "$1" -- $options >"$2" 2>&1 && ! grep -qE '(warning|error):' "$2"
}
check() {
  local name=${1//\//_} file files status=0
  mapfile -t files < <(grep -L '^#include <windows.h>' "$1"/*.cpp)  # which is another system's
  printf '#include "%s"\n' "${files[@]}" >"$found/$name.cpp"
  ! look "$found/$name.cpp" "$found/$name.out" || return 0
  for file in "${files[@]}"; do
    look "$file" "$found/$name.out" || { cat "$found/$name.out"; status=1; }
  done
  return $status
}
export -f check look
printf '%s\0' assets awl/ui grading/ui ladder/ui panel panel/controls panel/documents panel/windows plants/host recorder/ui widgets |
  xargs -0 -P "$(nproc)" -I{} bash -c 'check {}'
