#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The core must not know the window library: fails when one of its files includes a Qt header or one
# of its objects refers to a Qt symbol. Usage: check_headless.sh SOURCE_DIR ARCHIVE...
set -uo pipefail
cd "$1" || exit 1
shift
bad=0
folders=()
for folder in plc awl plants trace recorder ladder grading bench HTML; do [ -d "$folder" ] && folders+=("$folder"); done

while IFS= read -r -d '' file; do
  if grep -HnE '^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"](Q[A-Z]|Qt|Qsci/)' "$file"; then bad=1; fi
done < <(find "${folders[@]}" \( -name '*.cpp' -o -name '*.h' \) \
  -not -path '*/ui/*' -not -path 'plants/host/*' -print0)

for archive in "$@"; do
  [ -f "$archive" ] || { echo "missing: $archive"; bad=1; continue; }
  symbols=$(nm -C "$archive" 2>/dev/null | grep -E '(^| )(Q[A-Z][A-Za-z]+::|vtable for Q[A-Z]|qt_[a-z])' | head -5)
  if [ -n "$symbols" ]; then
    echo "$archive refers to Qt:"
    echo "$symbols"
    bad=1
  fi
done
exit $bad
