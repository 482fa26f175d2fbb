#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A student's first hour by keyboard alone: writes a program with a mistake, saves, compiles, goes to
# the mistake and mends it, loads, runs, throws switches by digit and by arrows, stops, steps; then a
# solved exercise, its Start and Stop held by the space bar, its page of the help, the end. No mouse.
# Usage: keyboard_hour.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

plant='00-Marcia/arresto'
help_page='^00 - Marcia e arresto'

# In the panel: the LEDs of Q0.0, Q0.1 and Q0.2, the first switch of I0, the mode in the status bar,
# the page of the run options.
led0=20x20+92+176
led1=20x20+120+176
led2=20x20+148+176
first_switch=26x38+89+400
mode=330x16+120+682
options=250x100+20+520
# In the picture: Start, Stop, the state of the CPU and the green lamp.
start=76x76+394+176
stop=76x76+292+176
cpu=50x16+500+322
lamp=20x20+722+205

picture() { piece_drawn "$1" "$2" "$work/$3.png"; }
as_in() { looks_like "$1" "$2" "$work/$3.png"; }
unlike() { looks_unlike "$1" "$2" "$work/$3.png"; }

# Moves on by the Tab key until a place has the frame of the focus, that is, looks unlike its picture.
# Usage: tab_to WINDOW WxH+X+Y PICTURE
tab_to() {
  local end=$((SECONDS + limit)) again
  while as_in "$@"; do
    [ $SECONDS -lt $end ] || fail "the Tab key does not lead to $3"
    keys Tab
    again=$((SECONDS + 2))
    until unlike "$@" || [ $SECONDS -ge $again ]; do sleep 0.05; done
  done
}
# The same, and then a key there, until its effect is seen. Usage: at WINDOW WxH+X+Y PICTURE KEYS WHAT COMMAND...
at() {
  local window=$1 place=$2 picture=$3 keys=$4
  shift 4
  act_until "$window" "tab_to '$window' $place $picture; keys $keys" "$@"
}

clipboard() { timeout $patience xclip -selection clipboard -o; }
# The saved file has its columns, so blanks do not count.
line_of_caret() {
  active "$editor" && keys Home shift+End ctrl+c && [ "$(clipboard | tr -s ' ' | sed 's/ *$//')" = "$1" ]
}
listing() { active "$editor" && keys ctrl+a ctrl+c && clipboard >"$work/text" && grep -q "$1" "$work/text"; }

compile_to() {
  open_by "$editor" F7 '^Attenzione!$'
  answer '^Attenzione!$'
  choose_file 'Salva con nome' "$1"
  answer '^Attenzione!$'
}

open_screen 2200x1200  # smaller, and the picture gives way to the other windows
start_program "$1"
focus "$panel"
wait_until 'the panel to stand still' at_rest "$panel"
for part in led0 led1 led2 first_switch; do picture "$panel" "${!part}" $part; done

open_by "$panel" ctrl+n "$editor"
focus "$editor"
keys ctrl+End
write_lines 'LDX I0.0' '= Q0.0' 'LD I0.1' '= Q0.1'
open_by "$editor" ctrl+s 'Salva con nome'
choose_file 'Salva con nome' "$work/first.AWL"
wait_until 'the saved project' grep -q 'LDX  *I0.0' "$work/first.AWL"

compile_to "$work/second.AWL"
act_until "$editor" 'keys ctrl+3' 'the listing with the mistake' listing 'Err.*LDX'
act_until "$editor" 'keys F4' 'the line with the mistake' line_of_caret 'LDX I0.0'
act_until "$editor" 'xdotool type --delay 20 "LD I0.0"' 'the line mended' line_of_caret 'LD I0.0'
compile_to "$work/third.AWL"
act_until "$editor" 'keys ctrl+3' 'the listing without mistakes' listing 'Ok!.*Q0.0'
open_by "$editor" F8 '^Attenzione!$'
answer '^Attenzione!$'
wait_gone "$editor"

start_run
at "$panel" $first_switch first_switch 0 'the LED of I0.0' unlike "$panel" $led0 led0
at "$panel" $first_switch first_switch 'Right space' 'the LED of I0.1' unlike "$panel" $led1 led1
as_in "$panel" $led2 led2 || fail 'a LED too many'
act_until "$panel" 'keys shift+F5' 'the dark LEDs' as_in "$panel" $led0 led0

picture "$panel" $mode mode
act_until "$panel" 'keys alt+p e' 'the step mode' unlike "$panel" $mode mode
start_run
picture "$panel" $options options
act_until "$panel" 'keys F10' 'the next line' unlike "$panel" $options options
act_until "$panel" 'keys shift+F5 alt+p c' 'the mode of the beginning' as_in "$panel" $mode mode

load_project "$2"
open_by "$panel" 'alt+s Return' "$plant"
wait_window 'Indicatori Stato'
focus "$plant"
wait_until 'the plant to stand still' at_rest "$plant"
for part in start stop cpu lamp; do picture "$plant" "${!part}" $part; done
act_until "$plant" 'keys F5' 'the run' unlike "$plant" $cpu cpu
# Held until the lamp follows, since a tap may be shorter than a scan.
act_until "$plant" "tab_to '$plant' $start start; xdotool keyup space keydown space" 'the lamp on' \
  unlike "$plant" $lamp lamp
xdotool keyup space
act_until "$plant" "tab_to '$plant' $stop stop; xdotool keyup space keydown space" 'the lamp off' \
  as_in "$plant" $lamp lamp
xdotool keyup space
open_by "$plant" F1 "$help_page"
close_by "$help_page" alt+F4
close_by "$plant" alt+F4
wait_gone 'Indicatori Stato'
ends_with 0 "$panel" ctrl+q
echo "written, mended, run, stepped and started by keys"
