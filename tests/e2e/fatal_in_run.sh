#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A fatal end inside a run shows its report and ends the process with a status other than 0.
# Usage: fatal_in_run.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

open_screen
start_program "$1"
load_project "$2"
keys F5
answer '^Errore!$'
ends_with 70
for part in 'Tabella o operazione: ' 'Indice o valore: ' 'Riga: 5  S M0.7'; do
  grep -q "$part" "$work/stderr" || fail "no '$part' in the report: $(cat "$work/stderr")"
done
echo "reported and ended with status 70"
