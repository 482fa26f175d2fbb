#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Every header of the program compiles alone. Where a source includes its own header first and its
# folder has no precompiled header, the build has proved it; the others are compiled here. A build that
# reads several sources as one text proves nothing of the core, and leaves it to the build without.
# A header that comes to a large one of the window library anyhow is read behind that one, precompiled.
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
# Usage: alone HEADER [LARGE_HEADER]
alone() {
  # shellcheck disable=SC2086
  ${CXX:-c++} -fsyntax-only -x c++ $options ${2:+-include "$large/$2.h"} -include "$1" /dev/null
}
# Names the header behind which each may be read: what it includes, followed through, has that one.
behind='
  /^#include/ { includes[FILENAME] = includes[FILENAME] $2 " " }
  function all(file, names, n, i, text) {
    n = seen[file]++ ? 0 : split(includes[file], names, " ")
    for (i = 1; i <= n; ++i)
      text = text names[i] (sub(/^"/, "", names[i]) && sub(/".*/, "", names[i]) ? all(names[i]) : "")
    return text
  }
  END {
    widgets = "<Q(Widget|MainWindow|Dialog|Label|ScrollArea|Frame|LineEdit|StatusBar|TextBrowser)>"
    for (k = 1; k < ARGC; ++k) {
      delete seen
      text = all(ARGV[k])
      print ARGV[k], text ~ widgets ? "QWidget" : text ~ /<Q(String|StringList|Object|Timer)>/ ? "QString" : ""
    }
  }'
export -f alone
large=$2/headers
export large
if [[ $system == *QtWidgets* ]]; then
  mkdir -p "$large"
  # shellcheck disable=SC2086,SC2016
  printf '%s\n' QWidget QString | xargs -P "$(nproc)" -I{} sh -c 'echo "#include <$1>" >"$large/$1.h"
    exec ${CXX:-c++} -x c++-header $options "$large/$1.h" -o "$large/$1.h.gch"' check {}
fi
# shellcheck disable=SC2086,SC2016
for header in $found; do proved "$header" || printf '%s ' "$header"; done |
  xargs awk "$behind" | xargs -P "$(nproc)" -I{} bash -c 'alone $1' check {}
