#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The first exercise as a student meets it: opened from the menu with its program running, Start
# pressed in the picture; contactor and lamp follow, hold, and fall with Stop.
# Usage: plant_in_run.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

# In the picture at 100 %: coil of the contactor, green lamp, Start and Stop.
coil=24x24+81+92
lamp=20x20+722+205
button=12x12+426+209
start='432 215'
stop='330 215'
plant='00-Marcia/arresto'

# Held until the parts look as they should, since a tap may be shorter than a scan.
# Usage: press X Y TEST
press() {
  act_until "$plant" "move_to '$plant' $1 $2; xdotool mouseup 1 mousedown 1" "coil and lamp $3" both "$3"
  xdotool mouseup 1
}
both() { "$1" "$plant" $coil "$work/coil.png" && "$1" "$plant" $lamp "$work/lamp.png"; }

open_screen 2200x1200  # smaller, and the picture gives way to the other windows
start_program "$1"
load_project "$2"
start_run
open_by "$panel" 'alt+s Return' "$plant"
focus "$plant"
wait_window 'Indicatori Stato'
wait_until 'the plant to stand still' at_rest "$plant"
for part in coil lamp button; do piece_drawn "$plant" "${!part}" "$work/$part.png"; done
# shellcheck disable=SC2086
press $start looks_unlike
wait_until 'the button to rise' looks_like "$plant" "$button" "$work/button.png"
both looks_unlike || fail 'the contactor does not hold'
# shellcheck disable=SC2086
press $stop looks_like
# For the projector and back: to the pixel where it was, though its frame was gone meanwhile.
place() { xdotool getwindowgeometry --shell "$(visible "$panel" | tail -1)" | grep -E '^(X|Y|WIDTH|HEIGHT)='; }
before=$(place)
full() { [[ $(place) == *WIDTH=2200* ]]; }
back() { [ "$(place)" = "$before" ]; }
act_until "$panel" 'keys F11' 'the panel to fill the screen' full
# The key goes to and fro: it is sent again only where it was lost.
act_until "$panel" '! full || keys F11' "the panel to be back in its place: ${before//$'\n'/ }" back
close_by "$plant" alt+F4
wait_gone 'Indicatori Stato'
ends_with 0 "$panel" ctrl+q
echo "started, held and stopped"
