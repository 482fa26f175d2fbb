#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Kills a program that saves all the time, at moments that chance picks: the file is always one of
# its versions, whole, and the next program saves over what a kill left. A file that another program
# holds open, and names that the system keeps for itself, are refused with a reason.
# Usage: killed_save.sh SAVE_LOOP [TIMES]
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export WINEDEBUG=-all
file=$folder/progetto.AWL
a=$(head -c 300000 /dev/zero | tr '\0' a | sha256sum)
b=$(head -c 200000 /dev/zero | tr '\0' b | sha256sum)
seen_a=0 seen_b=0 left=0
for ((i = 0; i < ${2:-20}; i++)); do
  coproc loop { exec wine "$1" "$file" 2>"$folder/errors"; }
  pid=$loop_PID
  read -r -u "${loop[0]}" word || { cat "$folder/errors"; exit 1; }
  [ "${word%$'\r'}" = begun ]
  sleep "0.$((RANDOM % 400 + 100))"
  kill -9 "$pid"
  wait "$pid" 2>/dev/null || true
  case $(sha256sum <"$file") in
    "$a") seen_a=$((seen_a + 1)) ;;
    "$b") seen_b=$((seen_b + 1)) ;;
    *) echo "kill $i: a file of $(stat -c %s "$file") bytes that is neither version" >&2; exit 1 ;;
  esac
  [ ! -f "$folder/.progetto.AWL.tavorno" ] || left=$((left + 1))
done
echo "$i kills: $seen_a and $seen_b times one of the versions, $left times in the middle of a save"

refused() {  # NAME REASON
  local said
  said=$(timeout 60 wine "$1" "$2" 2>&1 >/dev/null | tr -d '\r') || true
  [ "$said" = "$3" ] || { echo "$2: '$said' instead of '$3'" >&2; exit 1; }
}
(cd "$folder" && refused "$(realpath "$1")" 'NUL.AWL' 'il nome del file non è ammesso')
mkdir "$folder/cartella.AWL"
refused "$1" "$folder/cartella.AWL" 'il percorso è una cartella'
refused "$1" "$folder/manca/x.AWL" 'il file o la cartella non esiste'
