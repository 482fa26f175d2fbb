#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Closing the panel ends the process cleanly, in the middle of a run and with every other window
# open: once by the window's own button, once by "Termina". Usage: close_in_run.sh PROGRAM PROJECT
source "$(dirname "$0")/screen.sh"

open_screen
for way in close menu; do
  start_program "$1"
  load_project "$2"
  start_run
  for window in 'i:Impostazioni pannello' 'n:Simulatore Ingressi an' 'e:Indicatori Stato'; do
    open_by "$panel" "alt+v ${window%%:*}" "${window#*:}"
  done
  open_by "$panel" F1 'Tavorno|Indice'
  if [ $way = close ]; then
    ends_with 0 "$panel" alt+F4
  else
    ends_with 0 "$panel" ctrl+q
  fi
done
echo "closed with status 0"
