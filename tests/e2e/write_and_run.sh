#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A student's first hour: writes a program, saves, compiles, reads the listing, loads, runs, clicks a
# switch and sees the LED, stops, edits, breaks a line and sees the error marked.
# Usage: write_and_run.sh PROGRAM
source "$(dirname "$0")/screen.sh"

# In the panel as it opens: the LED of Q0.0 and the switch of I0.0.
led=20x20+92+176
switch='102 418'

listing() {
  active "$editor" || return
  keys ctrl+a ctrl+c
  timeout $patience xclip -selection clipboard -o >"$work/listing" && grep -q "$1" "$work/listing"
}
error_marks() {
  import -window "$(visible "$editor" | tail -1)" "$work/now.png"
  # The colour of the mark in the margin.
  [ "$(convert "$work/now.png" -fill black +opaque '#d0112b' -fill white -opaque '#d0112b' \
    -format '%[fx:int(mean*w*h)]' info:)" -gt 20 ]
}

open_screen
start_program "$1"
open_by "$panel" ctrl+n "$editor"
focus "$editor"
keys ctrl+End
write_lines 'LD I0.0' '= Q0.0'
open_by "$editor" ctrl+s 'Salva con nome'
choose_file 'Salva con nome' "$work/first.AWL"
wait_until 'the saved project' grep -q 'LD  *I0.0' "$work/first.AWL"

open_by "$editor" F7 '^Attenzione!$'
answer '^Attenzione!$'
choose_file 'Salva con nome' "$work/second.AWL"
answer '^Attenzione!$'
act_until "$editor" 'keys ctrl+3' 'the listing' listing 'Ok!.*Q0.0'
open_by "$editor" F8 '^Attenzione!$'
answer '^Attenzione!$'
wait_gone "$editor"

focus "$panel"
piece_drawn "$panel" $led "$work/dark.png"
start_run
act_until "$panel" "click_at '$panel' $switch" 'the lit LED' looks_unlike "$panel" $led "$work/dark.png"
act_until "$panel" 'keys shift+F5' 'the dark LED' looks_like "$panel" $led "$work/dark.png"

open_by "$panel" ctrl+e "$editor"
focus "$editor"
keys ctrl+End
write_lines 'LDX I0.0'
open_by "$editor" F7 '^Attenzione!$'
answer '^Attenzione!$'
choose_file 'Salva con nome' "$work/third.AWL"
answer '^Attenzione!$'
act_until "$editor" 'keys ctrl+3' 'the listing with the error' listing 'Err.*LDX'
act_until "$editor" 'keys ctrl+1' 'the mark of the error' error_marks
close_by "$editor" ctrl+q
ends_with 0 "$panel" ctrl+q
echo "written, run and marked"
