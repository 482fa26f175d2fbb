#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Pictures of every window of the real program, at 100 % or at the scale given. Needs ImageMagick.
# Usage: screenshots.sh PROGRAM EXAMPLES_DIR OUTPUT_DIR [SCALE]
source "$(dirname "$0")/screen.sh"

program_file=$1
examples=$2
out=$3
export QT_SCALE_FACTOR=${4:-1}
mkdir -p "$out"

# Usage: picture NAME WINDOW
picture() {
  wait_window "$2"
  sleep 0.3  # pictures only: let the window paint its last change
  import -window "$(visible "$2" | tail -1)" -strip -depth 8 "$out/$1.png"
}

if [ "$QT_SCALE_FACTOR" = 1 ]; then open_screen 1280x800; else open_screen 2560x1600; fi
start_program "$program_file"
picture panel-at-start 'Simulatore PLC'

# The editor: a project with errors, then one without.
focus 'Simulatore PLC'
keys ctrl+o
picture file-dialog '^Apri$'
focus '^Apri$'
xdotool type --delay 10 "$examples/errore.AWL"
keys Return
focus 'Editor AWL'
picture editor 'Editor AWL'
keys F7
picture box-errors '^Attenzione!$'
answer '^Attenzione!$'
focus 'Editor AWL'
picture editor-errors 'Editor AWL'
keys alt+v f m
picture editor-annotations 'Editor AWL'
keys ctrl+p
picture print 'Stampe Progetto'
keys Escape
wait_gone 'Stampe Progetto'
focus 'Editor AWL'
click_at 'Editor AWL' $((845 * QT_SCALE_FACTOR)) $((501 * QT_SCALE_FACTOR))  # its only way in
picture debug 'Finestra Test'
focus 'Finestra Test'
keys Escape
wait_gone 'Finestra Test'
focus 'Editor AWL'
keys ctrl+q
wait_gone 'Editor AWL'
load_project "$examples/semaforo.AWL"
picture panel-loaded 'Simulatore PLC'
keys F5
click_at 'Simulatore PLC' $((102 * QT_SCALE_FACTOR)) $((418 * QT_SCALE_FACTOR))  # I0.0: the lights start
xdotool mousemove 0 0
sleep 2
picture panel-running 'Simulatore PLC'
for window in 's:status:Indicatori Stato' 'i:settings:Impostazioni pannello' 'n:analog:Simulatore Ingressi an'; do
  IFS=: read -r key name title <<<"$window"
  focus 'Simulatore PLC'
  keys alt+v
  case $key in s) keys e ;; *) keys "$key" ;; esac
  picture "$name" "$title"
done
focus 'Simulatore PLC'
keys F1
picture help '^(Indice|Tavorno|Come)'
focus 'Simulatore PLC'
keys alt+h a
picture about 'Informazioni sul programma'
answer 'Informazioni sul programma'
focus 'Simulatore PLC'
keys ctrl+q
ends_with 0
echo "pictures in $out"
