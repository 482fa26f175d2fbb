#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What was typed and not saved outlives every end of the process that its user did not ask for, and
# comes back at the next start; two programs do not take each other's. Usage: recovery.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

copies() { find "$XDG_STATE_HOME" -name '*.copia' 2>/dev/null; }
copied() { copies | xargs -r grep -qF "$1"; }
one_copy() { [ "$(copies | xargs -r grep -lF "$1" | wc -l)" = 1 ]; }
no_copies() { [ -z "$(copies)" ]; }

# Opens a new project and types a line that no other has. What was there before keeps its copy,
# since nobody was asked.
type_unsaved() {
  open_by "$panel" ctrl+n "$editor"
  focus "$editor"
  xdotool type --delay 10 "//lavoro $1 "
}
# The next start offers the line, and takes it up.
recover() {
  start_program "${program_file[@]}"
  close_by '^Recupera$' Return
  wait_window "$editor"
  wait_until "this program's copy in the old one's place" one_copy "lavoro $1"
}
program_file=(env --default-signal=INT "$1")  # which the shell switches off behind "&"
open_screen

start_program "${program_file[@]}"
type_unsaved KILL
wait_until "the copy" copied 'lavoro KILL'
[ "$(stat -c %a "$(copies)")" = 600 ] || fail "others can read the copy"
kill -KILL "$program"
ends_with 137
recover KILL

# A second program offers nothing while the first one runs, and leaves its copy alone.
first=$program
program=
"${program_file[@]}" 2>"$work/stderr-2" &
second=$!
two_panels() { [ "$(visible "$panel" | wc -l)" = 2 ]; }
wait_until "the second panel" two_panels
! visible '^Recupera$' || fail "the second program offers what the first one has"
kill -KILL "$second"
wait "$second" || true
program=$first
copied 'lavoro KILL' || fail "the second program took the first one's copy"

# As it stood when the signal came: typed a moment before, no round of the keeper in between.
for signal in TERM:143 HUP:129 INT:130; do
  close_by "$editor" ctrl+q
  type_unsaved "$signal"
  wait_until "the keys" copied "lavoro $signal"
  xdotool type --delay 10 "e dopo "
  kill -"${signal%:*}" "$program"
  ends_with "${signal#*:}"
  recover "$signal"
done

# The screen goes, and with it the program.
kill "${helpers[Xvfb]}"
helpers=()
ends_with 1
copied 'lavoro INT' || fail "the copy went with the screen"
start_screen
recover INT

# A fatal end: the copy is there while its report is on the screen.
load=$(mktemp "$work/XXXXXX.AWL")
cp "$2" "$load"
close_by "$editor" ctrl+q
load_project "$load"
open_by "$panel" ctrl+n "$editor"
focus "$editor"
xdotool type --delay 10 '//lavoro FATALE '
open_by "$panel" F5 '^Errore!$'
copied 'lavoro FATALE' || fail "the report came before the copy"
answer '^Errore!$'
close_by '^Attenzione!$' alt+s  # to save, which is then cancelled
close_by 'Salva con nome' Escape
ends_with 70
copied 'lavoro FATALE' || fail "the copy is gone though nothing was saved"

# All texts are offered; the newest comes first, and goes when it is saved.
start_program "${program_file[@]}"
close_by '^Recupera$' Return
open_by "$editor" ctrl+s 'Salva con nome'
choose_file 'Salva con nome' "$work/salvato.AWL"
wait_until 'the saved project' grep -q 'lavoro FATALE' "$work/salvato.AWL"
! copied 'lavoro FATALE' || fail "a copy of what is saved"
close_by "$editor" ctrl+q
ends_with 0 "$panel" ctrl+q

# What is left is thrown away knowingly.
start_program "${program_file[@]}"
for ((left = $(copies | wc -l); left > 0; left--)); do
  [ "$left" = "$(copies | wc -l)" ] || fail "$left copies expected: $(copies)"
  open_by '^Recupera$' alt+b '^Attenzione!$'
  answer '^Attenzione!$'
done
wait_gone '^Recupera$'
no_copies || fail "copies are left: $(copies)"
ends_with 0 "$panel" ctrl+q
echo "recovered after every end"
