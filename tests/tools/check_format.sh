#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails when a source file is not as clang-format writes it. Usage: check_format.sh SOURCE_DIR
set -euo pipefail
cd "$1"
find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 clang-format --dry-run --Werror
