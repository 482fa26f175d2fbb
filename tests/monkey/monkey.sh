#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs the hasty user with TAVORNO_MONKEY_SEEDS seeds (4), from TAVORNO_MONKEY_FIRST on (1), of
# TAVORNO_MONKEY_STEPS steps each (600). For an hour: TAVORNO_MONKEY_SEEDS=400 TAVORNO_MONKEY_STEPS=1000
# Usage: monkey.sh MONKEY
set -euo pipefail
first=${TAVORNO_MONKEY_FIRST:-1} seeds=${TAVORNO_MONKEY_SEEDS:-4} steps=${TAVORNO_MONKEY_STEPS:-600}
fatal=0
for ((seed = first; seed < first + seeds; seed++)); do
  status=0
  output=$("$1" "$seed" "$steps" 2>&1) || status=$?
  if [ $status = 70 ]; then
    fatal=$((fatal + 1))
    grep -A5 '^seed' <<<"$output"
  elif [ $status != 0 ]; then
    echo "$output" | grep -v 'This plugin does not support'
    echo "FAILED: seed $seed with $steps steps: status $status"
    exit 1
  fi
done
echo "$seeds seeds of $steps steps, $fatal of them to a fatal end of the CPU"
