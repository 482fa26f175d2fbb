#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# A student's first hour as one has it who sees nothing: everything is read from the tree of the
# accessibility bus and done through it. The bus is this test's own, and without one it fails.
# Usage: reader_hour.sh PROGRAM PROJECT
if [ -z "${READER_BUS:-}" ]; then
  # The accessibility bus has its socket there; without, the user's own, or another run's, is taken.
  READER_BUS=$(mktemp -d)
  trap 'rm -rf "$READER_BUS"' EXIT
  export READER_BUS XDG_RUNTIME_DIR="$READER_BUS" XDG_CACHE_HOME="$READER_BUS"
  dbus-run-session -- bash "$0" "$@"
  exit
fi
source "$(dirname "$0")/screen.sh"

open_screen
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_program "$1"
mkdir "$work/projects"
PYTHONDONTWRITEBYTECODE=1 /usr/bin/python3 -W ignore "$(dirname "$0")/reader_hour.py" "$work/projects" "$2"
grep -q '^LDX ' "$work/projects/errata.AWL" || fail "the mistake was not saved"
grep -q '^LD ' "$work/projects/giusta.AWL" || fail "the mended program was not saved"
ends_with 0
