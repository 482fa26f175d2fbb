#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The rule of the includes on small houses of its own: what is right passes, and each way to be
# wrong is found and named. Usage: check_includes_test.sh
set -euo pipefail
tools=$(cd "$(dirname "$0")" && pwd)
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
printf '%s\n' '# a comment' 'low:' 'low/ui: low' 'high: low' >"$house/folders"
mkdir -p "$house/src/low/ui" "$house/src/high"
failed=0

# Usage: file PATH INCLUDES...; a file of the house
file() {
  local path=$1
  shift
  printf '#include "%s"\n' "$@" >"$house/src/$path"
}
# The house as it stands at the beginning of every case.
right() {
  rm -f "$house"/src/*/*.* "$house"/src/*/*/*.*
  file low/a.cpp low/a.h
  file low/a.h low/b.h
  file low/ui/w.cpp low/a.h
  file high/c.cpp ../low/b.h
  printf '#include <vector>\n' >"$house/src/low/b.h"
}
# Usage: expect MESSAGE; "" stands for a house without faults
expect() {
  local said status=0
  said=$("$tools/check_includes.sh" "$house/src" "$house/folders") || status=$?
  [ "$said" = "$1" ] && [ "$status" -eq $((${#1} > 0)) ] && return
  printf 'expected: %s\nfound (status %s): %s\n' "$1" "$status" "$said"
  failed=1
}

right
expect ''

right
file low/b.h high/d.h
expect 'low/b.h: low may not know high/d.h'

right
rm "$house/src/low/ui/w.cpp"
file low/a.h ui/w.h
file low/ui/w.h low/b.h
expect 'low/a.h: low may not know low/ui/w.h'

right
file low/b.cpp low/b.h low/c.h
file low/c.h low/a.h
expect 'circle of files: low/a low/b low/c'

right
mkdir "$house/src/new"
file new/e.cpp low/a.h
expect 'new/e.cpp: its folder has no place in the order'
rm -r "$house/src/new"

right
echo 'middle: high middle2' >>"$house/folders"
expect 'middle may know middle2, which does not stand above it'

exit $failed
