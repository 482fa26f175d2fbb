#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs clang-tidy over the sources without windows. A file is looked at again only when it, a header or
# the configuration has changed. Usage: check_tidy.sh SOURCE_DIR BUILD_DIR
set -euo pipefail
cd "$1"
build=$2
stamps=$build/tidy
mkdir -p "$stamps"
folders=()
for folder in plc awl plants trace recorder ladder grading bench HTML; do [ -d "$folder" ] && folders+=("$folder"); done
common=$({ cat .clang-tidy; find "${folders[@]}" -name '*.h' -print0 | sort -z | xargs -0 cat; } | sha256sum)

check() {
  local source=$1 stamp
  stamp=$stamps/$(printf '%s' "$common$(cat "$source")$source" | sha256sum | cut -c1-32)
  [ -e "$stamp" ] && return 0
  # The sanitizer and warning options belong to the other compiler.
  clang-tidy --quiet "$source" -- -std=c++20 -I. -DTAVORNO_VERSION='""' >"$stamp.out" 2>&1 || { cat "$stamp.out"; return 1; }
  mv "$stamp.out" "$stamp"
}
export -f check
export stamps common
find "${folders[@]}" -name '*.cpp' -not -path '*/ui/*' -not -path '*/host/*' -print0 |
  sort -z | xargs -0 -P "$(nproc)" -I{} bash -c 'check {}'
