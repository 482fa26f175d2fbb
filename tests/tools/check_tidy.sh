#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs clang-tidy over all sources. Most of its time goes into the libraries' headers, so that many
# files are looked at as one text; where that finds anything or does not compile, the halves are, down
# to each file alone, and that counts. A file is looked at again only when it, a header or the
# configuration has changed; what is for another system needs that one's headers and is not looked at.
# Usage: check_tidy.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
source "${0%/*}/sources.sh"
cd "$1"
export stamps=$2/tidy
mkdir -p "$stamps"
headers=$(find . -path './build*' -prune -o -name '*.h' -printf '%P\n' | LC_ALL=C sort)
mapfile -t sources < <(sources)
# shellcheck disable=SC2086
common=$(cat .clang-tidy "$0" "${0%/*}/sources.sh" "${0%/*}/as_one.awk" cmake/names.awk $headers | sha256sum)
# The sanitizer and warning options belong to the other compiler.
system=$(grep -ohE -- '-isystem [^ "]+' "$2/compile_commands.json" | sort -u | tr '\n' ' ')
options="-std=c++20 -fPIC -DQT_NO_KEYWORDS -I. -I$2 $system -DTAVORNO_VERSION=\"\""
# Of a function's paths a third of the usual number: all that was ever found lies in these, and the
# rest costs as much as everything else together.
options+=" -Xclang -analyzer-config -Xclang max-nodes=75000"
# Nor does it follow the calls into the standard library, which is not ours to mend.
options+=" -Xclang -analyzer-config -Xclang c++-stdlib-inlining=false"
windows='^(awl/ui|[a-z]+/ui|plants/host|panel|widgets)/'
as_one=${0%/*}/as_one.awk
export options common windows as_one

stamp() { printf '%s/%s' "$stamps" "$(printf '%s' "$common$1$(cat "$1")" | sha256sum | cut -c1-32)"; }
# Whoever makes a child of a window hands it to the window, which the analyzer cannot know.
owner() { [[ ! $1 =~ $windows ]] || echo -clang-analyzer-cplusplus.NewDeleteLeaks; }
# Usage: look FIRST_FILE TEXT REPORT CHECKS...
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
    awk -f cmake/names.awk -f "$as_one" "${files[@]}" >"$text"
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

# What brings the names of a namespace into all that follows is looked at alone.
# shellcheck disable=SC2016
{
  grep -lE '^using (enum|namespace) ' "${sources[@]}"
  printf '%s\n' "${sources[@]}" | grep -E "$windows" | xargs grep -LE '^using (enum|namespace) ' | xargs -n 66
  printf '%s\n' "${sources[@]}" | grep -vE "$windows" | xargs grep -LE '^using (enum|namespace) ' | xargs -n 66
} | xargs -P "$(nproc)" -I{} bash -c 'check $1' check {}
