#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Records the tank exercise, which has analog channels, with both commands that record, and has
# gtkwave's tools turn the dump into their own format and back: names, kinds and every change must
# come out as they went in. Usage: read_by_gtkwave.sh BANCO EXAMPLES
set -euo pipefail
banco=$1
examples=$2
if ! command -v vcd2fst >/dev/null; then
  echo "vcd2fst is not installed" >&2
  exit 77
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# The variables, each with its name in place of its short name, and the changes under the names in
# the order of time and name.
read_dump() {
  awk '
    $1 == "$var" { name[$4] = $5; print "var", ($2 == "wire" ? "wire" : $2), $5 }
    /^#/ { time = substr($1, 2) }
    /^[01]/ { print time, name[substr($1, 2)], substr($1, 1, 1) }
    /^r/ { print time, name[$2], substr($1, 2) + 0 }
    /^b/ { sub(/^b0*/, "b", $1); print time, name[$2], $1 }
  ' "$1" | sort
}

read -r -a arguments <<<"$(grep -v '^#' "$examples/us14.args" | tr '\n' ' ' | sed 's/, /,/g')"
(cd "$examples" && "$banco" "${arguments[@]}" --vcd "$folder/esegui.vcd" >/dev/null)
(cd "$examples" && "$banco" prova us14.AWL us14.lua --impianto 14 --vcd "$folder/prova.vcd" >/dev/null)
for command in esegui prova; do
  vcd2fst "$folder/$command.vcd" "$folder/$command.fst"
  fst2vcd "$folder/$command.fst" -o "$folder/$command.back.vcd"
  read_dump "$folder/$command.vcd" >"$folder/written"
  read_dump "$folder/$command.back.vcd" >"$folder/read"
  # Nothing compared would be nothing proved.
  [ "$(grep -c '^[0-9]' "$folder/written")" -gt 100 ] || { echo "$command: hardly a change" >&2; exit 1; }
  grep -q '^var real' "$folder/written"
  diff "$folder/written" "$folder/read"
done
