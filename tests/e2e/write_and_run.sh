#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A student's first hour: writes a program, saves, compiles, reads the listing, loads, runs, clicks a
# switch and sees the LED, stops, edits, breaks a line and sees the error marked.
# Usage: write_and_run.sh PROGRAM
source "$(dirname "$0")/screen.sh"

# In the panel as it opens: the LED of Q0.0 and the switch of I0.0.
led=20x20+92+176
switch='102 418'
panel='Simulatore PLC'
editor='Editor AWL'

listing() {
  keys ctrl+a ctrl+c
  xclip -selection clipboard -o >"$work/listing" && grep -q "$1" "$work/listing"
}
error_marks() {
  import -window "$(visible "$editor" | tail -1)" "$work/now.png"
  # The colour of the mark in the margin.
  [ "$(convert "$work/now.png" -fill black +opaque '#d0112b' -fill white -opaque '#d0112b' \
    -format '%[fx:int(mean*w*h)]' info:)" -gt 20 ]
}

open_screen
start_program "$1"
focus "$panel"
keys ctrl+n
focus "$editor"
keys ctrl+End
write_lines 'LD I0.0' '= Q0.0'
keys ctrl+s
choose_file 'Salva con nome' "$work/first.AWL"
wait_until 'the saved project' grep -q 'LD  *I0.0' "$work/first.AWL"

focus "$editor"
keys F7
answer '^Attenzione!$'
choose_file 'Salva con nome' "$work/second.AWL"
answer '^Attenzione!$'
focus "$editor"
keys ctrl+3
wait_until 'the listing' listing 'Ok!.*Q0.0'
keys F8
answer '^Attenzione!$'
wait_gone "$editor"

focus "$panel"
piece "$panel" $led "$work/dark.png"
keys F5
# shellcheck disable=SC2086
click_at "$panel" $switch
wait_until 'the lit LED' looks_unlike "$panel" $led "$work/dark.png"
keys shift+F5
wait_until 'the dark LED' looks_like "$panel" $led "$work/dark.png"

keys ctrl+e
focus "$editor"
keys ctrl+End
write_lines 'LDX I0.0'
keys F7
answer '^Attenzione!$'
choose_file 'Salva con nome' "$work/third.AWL"
answer '^Attenzione!$'
focus "$editor"
wait_until 'the listing with the error' listing 'Err.*LDX'
keys ctrl+1
wait_until 'the mark of the error' error_marks
keys ctrl+q
wait_gone "$editor"
focus "$panel"
keys ctrl+q
ends_with 0
echo "written, run and marked"
