#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a test program that shows windows under wine, on a screen in memory and in a system of its
# own. Usage: on_screen.sh PROGRAM ARGS...
source "$(dirname "$0")/../e2e/screen.sh"
open_screen
unset QT_QPA_PLATFORM WINEPREFIX
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="
trap 'wineserver -k 2>/dev/null || true; close_screen' EXIT
wineboot --init >/dev/null 2>&1
wine "$@"
