#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Output that is lost is told and is a failure, for every command. Usage: lost_output.sh BENCH EXAMPLES
set -euo pipefail
bench=$1 examples=$2
progetto=$examples/us00.AWL
script=$examples/us00.lua
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/classe"
cp "$progetto" "$work/classe/rossi.AWL"
"$bench" registra "$progetto" --ms 10 --uscita "$work/prova.seduta" >"$work/out"

# Status and message of a command whose output goes nowhere.
check() {
  local come=$1 stato=0 messaggio
  shift
  case $come in
    full) messaggio=$("$bench" "$@" 2>&1 >/dev/full) || stato=$? ;;
    closed) messaggio=$("$bench" "$@" 2>&1 >&-) || stato=$? ;;
  esac
  if [ "$stato" != 1 ] || [[ $messaggio != *"andata persa"* ]]; then
    echo "$come: $*: status $stato, \"$messaggio\""
    exit 1
  fi
}

for come in full closed; do
  check $come --help
  check $come --version
  check $come compila "$progetto"
  check $come compila "$progetto" --json
  check $come esegui "$progetto" --ms 10
  check $come registra "$progetto" --ms 10 --uscita "$work/altra.seduta"
  check $come rivivi "$work/prova.seduta"
  check $come rivivi "$work/prova.seduta" --confronta "$work/prova.seduta"
  check $come rivivi "$work/prova.seduta" --script "$work/mani.lua"
  check $come scala "$progetto"
  check $come scala "$progetto" --svg "$work/scala.svg"
  check $come misura "$progetto" --ms 1
  check $come prova --help
  check $come prova "$progetto" "$script" --impianto 0
  check $come prova "$progetto" "$script" --impianto 0 --json
  check $come classe --help
  check $come classe "$work/classe" "$script" --impianto 0 --uscita "$work/voti-$come"
done
