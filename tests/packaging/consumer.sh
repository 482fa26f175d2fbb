#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the libraries without windows, builds somebody else's program against them, and looks at
# what it prints. Usage: consumer.sh BUILD_DIR CXX_COMPILER
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake --install "$1" --prefix "$folder/usr" --component library >"$folder/log"
[ -z "$(find "$folder/usr" -path '*/ui/*' -o -path '*/host/*')" ]

# Nothing of the tree it was built from may be needed.
cp -r "$(dirname "$0")/consumer" "$folder/consumer"
if grep -rF "$(cd "$(dirname "$0")/../.." && pwd)/" "$folder/usr/lib" --include='*.cmake'; then exit 1; fi
cmake -S "$folder/consumer" -B "$folder/build" -G Ninja -DCMAKE_PREFIX_PATH="$folder/usr" \
  -DCMAKE_CXX_COMPILER="$2" >>"$folder/log" || { cat "$folder/log"; exit 1; }
cmake --build "$folder/build" >>"$folder/log" || { cat "$folder/log"; exit 1; }

"$folder/build/consumer" >"$folder/printed"
diff "$folder/printed" - <<'END'
 200 ms  Q0.0 = 1
 700 ms  Q0.0 = 0
END
