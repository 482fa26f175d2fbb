#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Every header of the program compiles alone. Where a source includes its own header first and its
# folder has no precompiled header, the build has proved it; the others are compiled here. A build that
# reads several sources as one text proves nothing of the core, and leaves it to the build without.
# Usage: check_headers.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
cd "$1"
found=$(find . -path './build*' -prune -o -path ./tests -prune -o -name '*.h' -printf '%P\n' | sort)
system=$(grep -ohE -- '-isystem [^ "]+' "$2/compile_commands.json" | sort -u | tr '\n' ' ')
options="-std=c++20 -fPIC -DQT_NO_KEYWORDS -DQT_GUI_LIB -DQT_WIDGETS_LIB -I. -I$2 $system"
windows='^([a-z]+/ui|plants/host|panel|widgets|assets)/'
core='^(plc|awl|plants|trace|recorder|grading)/[a-z_]+\.h$'  # see CMakeLists.txt
[[ $system == *QtWidgets* ]] || found=$(grep -vE "$windows" <<<"$found")
! grep -q '^TAVORNO_TOGETHER:BOOL=ON' "$2/CMakeCache.txt" || found=$(grep -vE "$core" <<<"$found")
export options

proved() {
  local source=${1%.h}.cpp
  [ -e "$source" ] && [ "$(grep -m1 '^#include' "$source")" = "#include \"$1\"" ] &&
    ! grep -q target_precompile_headers "$(dirname "$1")/CMakeLists.txt" 2>/dev/null
}
alone() {
  # shellcheck disable=SC2086
  ${CXX:-c++} -fsyntax-only -x c++ $options -include "$1" /dev/null
}
export -f alone
# shellcheck disable=SC2016
for header in $found; do proved "$header" || printf '%s\0' "$header"; done |
  xargs -0 -P "$(nproc)" -I{} bash -c 'alone $1' check {}
