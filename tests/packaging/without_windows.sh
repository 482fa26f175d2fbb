#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Without windows the project configures on a machine that has no Qt, and no command of that build
# mentions it. Usage: without_windows.sh SOURCE_DIR
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake -S "$1" -B "$folder" -G Ninja -DTAVORNO_WINDOWS=OFF -DTAVORNO_TESTS=ON \
  -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON -DCMAKE_DISABLE_FIND_PACKAGE_QScintilla=ON \
  -DCMAKE_EXPORT_COMPILE_COMMANDS=ON >"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
grep -q 'plc/scan.cpp' "$folder/compile_commands.json"
if grep -iE 'qt6|qsci|panel/|widgets/' "$folder/compile_commands.json"; then exit 1; fi
