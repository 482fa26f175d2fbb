#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs clazy over the code with windows. Its time goes into the window library's headers, so that many
# files are looked at as one text; where that finds anything or does not compile, each file is looked
# at alone, and that counts. Usage: check_clazy.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
source "${0%/*}/sources.sh"
cd "$1"
export found=$2/clazy as_one=${0%/*}/as_one.awk
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
  local text=$found/${1//\//_} status=0
  awk -f cmake/names.awk -f "$as_one" "$@" >"$text"
  ! look "$text" "$text.out" || return 0
  for file in "$@"; do
    look "$file" "$text.out" || { cat "$text.out"; status=1; }
  done
  return $status
}
export -f check look
sources | grep -E '^(assets|[a-z]+/ui|panel|plants/host|widgets)/' |
  xargs -n 70 -P "$(nproc)" bash -c 'check "$@"' check
