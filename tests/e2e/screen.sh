# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by the end-to-end tests: a screen in memory, and the program on it, driven by mouse and
# keys as a user would. Every wait is for a state, with a generous limit. A key can be lost on its way
# to a window that is just coming up, so that what is done counts when its effect is seen, and is done
# again until then. A helper process that ends is named at once.
set -euo pipefail

limit=240                         # seconds before a state counts as never reached
patience=${TAVORNO_PATIENCE:-15}  # seconds before a key without an effect is sent again
declare -A helpers=()

panel='Simulatore PLC'
editor='Editor AWL'

# The screen, its window manager and a home without history. Usage: open_screen [WxH]
open_screen() {
  work=$(mktemp -d)
  trap close_screen EXIT
  export HOME=$work XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work XDG_STATE_HOME=$work/state
  export QT_QPA_PLATFORM=xcb NO_AT_BRIDGE=1
  start_screen "$@"
}

start_screen() {
  # On a busy machine a key is down for longer than it takes to repeat (-r). A screen whose only
  # client leaves, be it one that asked something, begins anew and turns others away (-noreset).
  coproc xvfb { exec Xvfb -displayfd 1 -screen 0 "${1:-1280x800}x24" -r -noreset -nolisten tcp 2>"$work/Xvfb.log"; }
  helpers[Xvfb]=$xvfb_PID
  read -r -t "$limit" number <&"${xvfb[0]}" || { alive; fail "the screen has no number"; }
  export DISPLAY=:$number
  openbox >"$work/openbox.log" 2>&1 &
  helpers[openbox]=$!
  wait_until "a window manager" managed
}

# Ends the test when a process that it stands on has ended.
alive() {
  local name
  for name in "${!helpers[@]}"; do
    kill -0 "${helpers[$name]}" 2>/dev/null || fail "$name has ended: $(tail -5 "$work/$name.log")"
  done
}

# It says that it is there before it listens, and what comes in between may lie until the next event:
# a window that is never shown.
managed() { xdotool set_num_desktops 1 && [ "$(xdotool get_num_desktops)" = 1 ]; }

close_screen() {
  [ -z "${program:-}" ] || kill -9 "$program" 2>/dev/null || true
  [ ${#helpers[@]} -eq 0 ] || kill "${helpers[@]}" 2>/dev/null || true
  rm -rf "$work"
}

fail() {
  echo "FAILED: $*" >&2
  xwininfo -root -tree 2>/dev/null | grep -E '^ +0x[0-9a-f]+ "' >&2 || true
  local picture=${TMPDIR:-/tmp}/tavorno-failed-$(basename "$0" .sh).png
  ! import -window root "$picture" 2>/dev/null || echo "The screen is in $picture" >&2
  exit 1
}

# Usage: wait_until WHAT COMMAND...
wait_until() {
  local what=$1 end=$((SECONDS + limit))
  shift
  until "$@" >/dev/null 2>&1; do
    alive
    running || fail "the program ended, waiting for $what: $(tail -20 "$work/stderr")"
    [ $SECONDS -lt $end ] || fail "waited for $what"
    sleep 0.05
  done
}

running() { [ -z "${program:-}" ] || kill -0 "$program" 2>/dev/null; }

# Does something in a window, with the focus there, until a state is reached. While another window
# stands before it, only waits. Usage: act_until WINDOW ACTION WHAT COMMAND...
act_until() {
  local window=$1 action=$2 what=$3 end=$((SECONDS + limit)) again times=0
  shift 3
  wait_window "$window"
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $end ] || fail "'$action' in '$window', $times times: waited for $what"
    if come_to_front "$window"; then
      times=$((times + 1))
      [ $times -eq 1 ] || echo "'$action' in '$window' once more: waited for $what" >&2
      eval "$action"
    fi
    again=$((SECONDS + patience))
    until "$@" >/dev/null 2>&1 || [ $SECONDS -ge $again ]; do
      alive
      running || "$@" >/dev/null 2>&1 || fail "the program ended, waiting for $what: $(tail -20 "$work/stderr")"
      sleep 0.05
    done
  done
}

# Asks for the focus once; false when the window does not get it.
come_to_front() {
  local again=$((SECONDS + patience)) window
  window=$(visible "$1" | tail -1) && [ -n "$window" ] || return 1
  xdotool windowactivate "$window" 2>/dev/null || return 1
  until active "$1" 2>/dev/null; do
    alive
    [ $SECONDS -lt $again ] || return 1
    sleep 0.05
  done
}

# Usage: start_program PROGRAM ARGS...
start_program() {
  "$@" 2>"$work/stderr" &
  program=$!
  wait_window "$panel"
}

visible() { xdotool search --onlyvisible --name "$1"; }
# The window manager names a window active before the keys go there.
active() {
  local window
  window=$(xdotool getactivewindow) && [ "$(xdotool getwindowfocus)" = "$window" ] &&
    [[ "$(xdotool getwindowname "$window")" =~ $1 ]]
}
gone() { ! visible "$1"; }

wait_window() { wait_until "window '$1'" visible "$1"; }
wait_gone() { wait_until "the end of window '$1'" gone "$1"; }

# Gives a window the focus.
focus() { act_until "$1" true "focus on '$1'" active "$1"; }

keys() { xdotool key --delay 30 "$@"; }
write_lines() {
  local line
  for line in "$@"; do
    xdotool type --delay 20 "$line"
    keys Return
  done
}

# Waits for the program's own end and checks its status. Usage: ends_with STATUS [WINDOW KEYS]
ends_with() {
  local status=0
  if [ $# -gt 1 ]; then
    act_until "$2" "keys $3" "the end of the process" ended
  else
    local end=$((SECONDS + limit))
    until ended; do
      alive
      [ $SECONDS -lt $end ] || fail "the process goes on"
      sleep 0.05
    done
  fi
  wait "$program" || status=$?
  program=
  [ "$status" -eq "$1" ] || fail "status $status, expected $1: $(cat "$work/stderr")"
}
ended() { ! kill -0 "$program" 2>/dev/null; }

# Opens a window by keys in another one. Usage: open_by WINDOW KEYS NEW_WINDOW
open_by() { act_until "$1" "keys $2" "window '$3'" visible "$3"; }

# Closes a window by keys. Usage: close_by WINDOW KEYS
close_by() { act_until "$1" "keys $2" "the end of window '$1'" gone "$1"; }

# Closes a box by its default button.
answer() { close_by "$1" Return; }

# Starts the scan in the panel, whose tool bar then shows another button pressed.
tool_bar=500x44+0+20
start_run() {
  focus "$panel"
  piece_drawn "$panel" $tool_bar "$work/stopped.png"
  act_until "$panel" 'keys F5' 'the run' looks_unlike "$panel" $tool_bar "$work/stopped.png"
}

# Opens a project in the editor, compiles it and loads it into the CPU.
load_project() {
  open_by "$panel" ctrl+o '^Apri$'
  choose_file '^Apri$' "$1"
  open_by "$editor" F8 '^Attenzione!$'
  answer '^Attenzione!$'
  wait_gone "$editor"
  focus "$panel"
}

# Types a path into the file dialog of a title and closes it. On Windows a path begins with a disk,
# which whoever calls puts into the environment.
choose_file() {
  act_until "$1" "keys ctrl+a; xdotool type --delay 10 '${TAVORNO_DISK:-}$2'; keys Return" "the end of window '$1'" gone "$1"
}

# A piece of a window as it looks now, in pixels from the window's corner. Usage: piece WINDOW WxH+X+Y FILE
piece() {
  import -window "$(visible "$1" | tail -1)" -crop "$2" +repage "$3"
}
# The same once there is anything: a window is visible before it is drawn, and a picture of nothing
# looks unlike all that comes later. Usage: piece_drawn WINDOW WxH+X+Y FILE
piece_drawn() { wait_until "something at $2 in '$1'" drawn "$@"; }
drawn() { piece "$@" && [ "$(identify -format %k "$3")" -gt 1 ]; }
# Usage: looks_like WINDOW WxH+X+Y FILE; true when the piece is the same picture
looks_like() {
  piece "$1" "$2" "$work/now.png"
  [ "$(compare -metric AE "$3" "$work/now.png" null: 2>&1)" = 0 ]
}
looks_unlike() { ! looks_like "$@"; }

# Whether a window looks the same ten times in a row: what comes up on a busy machine is drawn bit by bit.
at_rest() {
  local look
  import -window "$(visible "$1" | tail -1)" "$work/before.png"
  for look in 1 2 3 4 5 6 7 8 9 10; do
    import -window "$(visible "$1" | tail -1)" "$work/now.png"
    [ "$(compare -metric AE "$work/before.png" "$work/now.png" null: 2>&1)" = 0 ] || return 1
  done
}

# Usage: move_to WINDOW X Y
move_to() { xdotool mousemove --window "$(visible "$1" | tail -1)" "$2" "$3"; }

# Clicks a place of a window with the left button. Usage: click_at WINDOW X Y
click_at() {
  move_to "$@"
  xdotool click 1
}
