#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Closing the panel ends the process cleanly, in the middle of a run and with every other window
# open: once by the window's own button, once by "Termina". Usage: close_in_run.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

open_screen
for way in close menu; do
  start_program "$1"
  load_project "$2"
  keys F5
  for window in 'i:Impostazioni pannello' 'n:Simulatore Ingressi an' 'e:Indicatori Stato'; do
    focus 'Simulatore PLC'
    keys alt+v "${window%%:*}"
    wait_window "${window#*:}"
  done
  focus 'Simulatore PLC'
  keys F1
  wait_window 'Tavorno|Indice'
  focus 'Simulatore PLC'
  if [ $way = close ]; then
    keys alt+F4
  else
    keys ctrl+q
  fi
  ends_with 0
done
echo "closed with status 0"
