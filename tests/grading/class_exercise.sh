#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A class is graded by the number of its exercise alone. Usage: class_exercise.sh BENCH EXAMPLES
set -euo pipefail
bench=$1 examples=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/consegne"
cp "$examples/us00.AWL" "$folder/consegne/"
cd "$folder"
"$bench" classe consegne --esercizio 0 | grep -q "Rapporti in esiti-us00/indice.html"
grep -q "us00.lua" esiti-us00/indice.html
for wrong in "consegne --esercizio 999" "consegne" "consegne $examples/us00.lua --esercizio 0"; do
  status=0
  # shellcheck disable=SC2086
  "$bench" classe $wrong --uscita "$folder/altri" 2>/dev/null || status=$?
  [ "$status" -eq 64 ] || { echo "status $status for: $wrong"; exit 1; }
done
