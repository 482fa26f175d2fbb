#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The folders know each other in one direction only, and no files in a circle: see folders.txt.
# Tests may include anything, and nothing includes them. Usage: check_includes.sh SOURCE_DIR [FOLDERS]
set -euo pipefail
tools=$(cd "$(dirname "$0")" && pwd)
folders=${2:-$tools/folders.txt}
cd "$1"

# An include is looked for beside the file, then from the root.
includes() {
  find . \( -path ./build -o -path ./tests -o -name '.?*' \) -prune -o \
    \( -name '*.cpp' -o -name '*.h' \) -printf '%P\0' |
    xargs -0 grep -HE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' |
    sed -E 's/^([^:]+):[^"]*"([^"]+)".*/\1\t\2/' |
    while IFS=$'\t' read -r file included; do
      beside=$(dirname "$file")/$included
      [ -e "$included" ] || [ ! -e "$beside" ] || included=${beside#./}
      printf '%s\t%s\n' "$file" "$included"
    done
}

awk -f "$tools/includes.awk" part=1 "$folders" part=2 <(includes)
