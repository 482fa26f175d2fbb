#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A desktop that is late shows the windows of an exercise long after they were told their places:
# they have their title bars on the screen all the same, and count as moved by nobody.
# Usage: late_desktop.sh PROGRAM BLINKING_PROJECT
source "$(dirname "$0")/screen.sh"

plant='00-Marcia/arresto'
lamp=20x20+92+176 # of Q0.0, half a second lit and half a second dark

told() { xdotool search --name "$plant"; }
titled() {
  local window top
  window=$(visible "$1" | tail -1)
  top=$(xprop -id "$window" -notype _NET_FRAME_EXTENTS | cut -d, -f3)
  [ "$(xwininfo -id "$window" | awk '/Absolute upper-left Y/ { print $NF }')" -ge "$top" ]
}

open_screen 1920x1080
trap 'kill -CONT "${helpers[openbox]}"; close_screen' EXIT
start_program "$1"
load_project "$2"
start_run
kill -STOP "${helpers[openbox]}"
keys alt+s Return
wait_until 'the exercise that nobody shows' told
for _ in 1 2 3 4 5; do
  piece "$panel" $lamp "$work/lamp.png"
  wait_until 'the lamp to change' looks_unlike "$panel" $lamp "$work/lamp.png"
done
kill -CONT "${helpers[openbox]}"
# Once it gives the focus it has done all that it was asked for before.
focus "$plant"
wait_until "the title bar of '$plant'" titled "$plant"
wait_until "the title bar of 'Indicatori Stato'" titled 'Indicatori Stato'
close_by "$plant" alt+F4
ends_with 0 "$panel" ctrl+q
settings=$XDG_CONFIG_HOME/tavorno/tavorno.conf
grep -q '^recenti=' "$settings" || fail "no settings: $(cat "$settings")"
! grep -A5 '^\[finestre\]' "$settings" || fail 'what nobody moved is remembered as moved'
echo "shown late, and in full"
