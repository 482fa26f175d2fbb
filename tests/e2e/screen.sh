# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the end-to-end tests: a screen in memory, and the program on it, driven by mouse and
# keys as a user would. Every wait is for a state, with a generous limit.
set -euo pipefail

limit=120  # seconds before a state counts as never reached

# The screen, its window manager and a home without history. Usage: open_screen [WxH]
open_screen() {
  work=$(mktemp -d)
  export HOME=$work XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
  coproc xvfb { exec Xvfb -displayfd 1 -screen 0 "${1:-1280x800}x24" -nolisten tcp 2>"$work/xvfb.log"; }
  read -r -t "$limit" number <&"${xvfb[0]}"
  export DISPLAY=:$number
  openbox >/dev/null 2>&1 &
  helpers="$xvfb_PID $!"
  wait_until "a window manager" managed
  trap close_screen EXIT
}

managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"; }

close_screen() {
  [ -z "${program:-}" ] || kill -9 "$program" 2>/dev/null || true
  # shellcheck disable=SC2086
  kill $helpers 2>/dev/null || true
  rm -rf "$work"
}

fail() {
  echo "FAILED: $*" >&2
  xwininfo -root -tree 2>/dev/null | grep -E '^ +0x[0-9a-f]+ "' >&2 || true
  exit 1
}

# Usage: wait_until WHAT COMMAND...
wait_until() {
  local what=$1 end=$((SECONDS + limit))
  shift
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $end ] || fail "waited for $what"
    sleep 0.05
  done
}

# Usage: start_program PROGRAM ARGS...
start_program() {
  "$@" 2>"$work/stderr" &
  program=$!
  wait_window 'Simulatore PLC'
}

visible() { xdotool search --onlyvisible --name "$1"; }
active() { [[ "$(xdotool getactivewindow getwindowname)" =~ $1 ]]; }
gone() { ! visible "$1"; }

wait_window() { wait_until "window '$1'" visible "$1"; }
wait_gone() { wait_until "the end of window '$1'" gone "$1"; }

# Gives a window the focus.
focus() {
  wait_window "$1"
  xdotool windowactivate "$(visible "$1" | tail -1)"
  wait_until "focus on '$1'" active "$1"
}

keys() { xdotool key --delay 30 "$@"; }
write_lines() {
  local line
  for line in "$@"; do
    xdotool type --delay 20 "$line"
    keys Return
  done
}

# Waits for the program's own end and checks its status.
ends_with() {
  local status=0 end=$((SECONDS + limit))
  while kill -0 "$program" 2>/dev/null; do
    [ $SECONDS -lt $end ] || fail "the process goes on"
    sleep 0.05
  done
  wait "$program" || status=$?
  program=
  [ "$status" -eq "$1" ] || { cat "$work/stderr" >&2; fail "status $status, expected $1"; }
}

# Closes a box by its default button.
answer() {
  focus "$1"
  keys Return
  wait_gone "$1"
}

# Opens a project in the editor, compiles it and loads it into the CPU.
load_project() {
  focus 'Simulatore PLC'
  keys ctrl+o
  focus '^Apri$'
  xdotool type --delay 10 "$1"
  keys Return
  wait_gone '^Apri$'
  wait_until "the editor in front" active 'Editor AWL'
  keys F8
  answer '^Attenzione!$'
  wait_gone 'Editor AWL'
  focus 'Simulatore PLC'
}

# Types a path into the file dialog of a title and closes it.
choose_file() {
  focus "$1"
  keys ctrl+a
  xdotool type --delay 10 "$2"
  keys Return
  wait_gone "$1"
}

# A piece of a window as it looks now, in pixels from the window's corner. Usage: piece WINDOW WxH+X+Y FILE
piece() {
  import -window "$(visible "$1" | tail -1)" -crop "$2" +repage "$3"
}
# Usage: looks_like WINDOW WxH+X+Y FILE; true when the piece is the same picture
looks_like() {
  piece "$1" "$2" "$work/now.png"
  [ "$(compare -metric AE "$3" "$work/now.png" null: 2>&1)" = 0 ]
}
looks_unlike() { ! looks_like "$@"; }

# Clicks a place of a window with the left button. Usage: click_at WINDOW X Y
click_at() {
  xdotool mousemove --window "$(visible "$1" | tail -1)" "$2" "$3" click 1
}
