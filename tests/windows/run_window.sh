#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Starts a program with windows under wine, for the tests that drive it: in the prefix of the test's
# own home, and with the platform of Windows. Usage: run_window.sh PROGRAM ARGS...
unset QT_QPA_PLATFORM WINEPREFIX
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe="
exec wine "$@"
