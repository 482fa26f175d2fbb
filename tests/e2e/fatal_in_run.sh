#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A fatal end inside a run shows its report and ends the process with a status other than 0. A text
# in the editor that is not saved yet can be saved before.
# Usage: fatal_in_run.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

open_screen
start_program "$1"
load_project "$2"
open_by "$panel" F5 '^Errore!$'
answer '^Errore!$'
ends_with 70
for part in 'Tabella o operazione: ' 'Indice o valore: ' 'Riga: 5  S M0.7'; do
  grep -q "$part" "$work/stderr" || fail "no '$part' in the report: $(cat "$work/stderr")"
done

start_program "$1"
load_project "$2"
open_by "$panel" ctrl+n "$editor"
focus "$editor"
xdotool type --delay 10 '//non salvato'
open_by "$panel" F5 '^Errore!$'
answer '^Errore!$'
answer '^Attenzione!$'
choose_file 'Salva con nome' "$work/salvato.AWL"
ends_with 70
grep -q 'TITLE=non salvato' "$work/salvato.AWL" || fail "the text is lost"
echo "reported and ended with status 70, and the text is saved"
