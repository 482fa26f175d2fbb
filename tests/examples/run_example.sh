#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs one example through the command line and compares what it prints, and its exit status, with
# the expectation beside it. Usage: run_example.sh BANCO EXAMPLE.AWL [--accept]
# EMULATOR in the environment runs the bench of another system.
#
# In EXAMPLE.args words are separated by blanks or line ends, a line that ends with a comma goes on
# in the next one, and a line that begins with "#" is a comment.
set -uo pipefail
banco=$(realpath -e "$1") || exit 1
project=$2
cd "$(dirname "$project")" || exit 1
name=$(basename "$project" .AWL)
words=$(grep -v '^#' "$name.args" | tr '\n' ' ')
read -r -a arguments <<<"${words//, /,}"
result=$(${EMULATOR:-} "$banco" "${arguments[@]}" 2>&1)
status=$?
actual=$(printf '%s\nstato %d' "$result" "$status")
if [ "${3:-}" = --accept ]; then
  printf '%s\n' "$actual" >"$name.atteso"
else
  diff -u "$name.atteso" <(printf '%s\n' "$actual")
fi
