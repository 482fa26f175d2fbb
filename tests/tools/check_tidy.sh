#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs clang-tidy over all sources. Most of its time goes into the libraries' headers, so that some
# files of a folder are looked at as one text; where that finds anything or does not compile (a name that
# two of them keep to themselves), the halves are, down to each file alone, and that counts. A file is
# looked at again only when it, a header or the configuration has changed; what is for another system
# needs that one's headers and is not looked at. Usage: check_tidy.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
cd "$1"
export stamps=$2/tidy together=16
mkdir -p "$stamps"
sources=$(git ls-files '*.cpp' ':!tests' ':!benchmarks' 2>/dev/null) || sources=
[ -n "$sources" ] || sources=$(find . -path './build*' -prune -o -path ./tests -prune -o -path ./benchmarks -prune -o -name '*.cpp' -printf '%P\n')
sources=$(printf '%s\n' "$sources" | xargs grep -L '#include <windows.h>')
common=$({ cat .clang-tidy "$0"; find . -path './build*' -prune -o -name '*.h' -print0 | sort -z | xargs -0 cat; } | sha256sum)
# The sanitizer and warning options belong to the other compiler.
system=$(grep -ohE -- '-isystem [^ "]+' "$2/compile_commands.json" | sort -u | tr '\n' ' ')
export options="-std=c++20 -fPIC -DQT_NO_KEYWORDS -I. -I$2 $system -DTAVORNO_VERSION=\"\""
# Of a function's paths a third of the usual number: all that was ever found lies in these, and the
# rest costs as much as everything else together.
options+=" -Xclang -analyzer-config -Xclang max-nodes=75000"
export common

stamp() { printf '%s/%s' "$stamps" "$(printf '%s' "$common$1$(cat "$1")" | sha256sum | cut -c1-32)"; }
# Whoever makes a child of a window hands it to the window, which the analyzer cannot know.
owner() { case $1 in awl/ui/* | */host/* | */ui/* | panel/* | widgets/*) echo -clang-analyzer-cplusplus.NewDeleteLeaks ;; esac; }
# Usage: look FOLDER'S_FILE TEXT REPORT CHECKS...
look() {
  # shellcheck disable=SC2086
  clang-tidy --quiet --checks="$(owner "$1"),$4" "$2" -- $options >"$3" 2>&1
}
check() {
  local text file half status=0 files=()
  for file in "$@"; do [ -e "$(stamp "$file")" ] || files+=("$file"); done
  [ ${#files[@]} -gt 0 ] || return 0
  text=$stamps/${files[0]//\//_}
  if [ ${#files[@]} -eq 1 ]; then
    look "${files[0]}" "${files[0]}" "$text.out" '' || { cat "$text.out"; return 1; }
  else
    cat "${files[@]}" >"$text"
    # Each file has a right to its own includes.
    if ! look "${files[0]}" "$text" "$text.out" -readability-duplicate-include; then
      half=$((${#files[@]} / 2))
      check "${files[@]:0:half}" || status=1
      check "${files[@]:half}" || status=1
      return $status
    fi
  fi
  for file in "${files[@]}"; do touch "$(stamp "$file")"; done
}
export -f stamp owner look check
# shellcheck disable=SC2016
for folder in $(printf '%s\n' "$sources" | xargs -n1 dirname | sort -u); do
  printf '%s\n' "$sources" | grep -E "^$folder/[^/]+\$" | sort | xargs -n "$together" echo
done | xargs -P "$(nproc)" -I{} bash -c 'check $1' check {}
