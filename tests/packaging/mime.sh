#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# What a desktop takes for a project, and that nothing else becomes one. Usage: mime.sh SOURCE_DIR
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder/data/mime/packages"
cp "$1/packaging/mime.xml" "$folder/data/mime/packages/org.tavorno.Tavorno.xml"
cp /usr/share/mime/packages/freedesktop.org.xml "$folder/data/mime/packages/"
export XDG_DATA_DIRS=$folder/data XDG_DATA_HOME=$folder/home
update-mime-database "$folder/data/mime" 2>"$folder/log" || { cat "$folder/log"; exit 1; }

kind() {
  gio info -a standard::content-type "$1" | sed -n 's/.*standard::content-type: //p'
}
expect() {  # WANTED NAME TEXT
  local file="$folder/$2"
  printf "$3" >"$file"
  local found
  found=$(kind "$file")
  [ "$found" = "$1" ] || { echo "$2: $found instead of $1" >&2; exit 1; }
}

for project in "$1"/examples/*.AWL; do [ "$(kind "$project")" = text/x-awl ]; done
first='ORGANIZATION_BLOCK MAIN:OB1\r\nTITLE=\r\nBEGIN\r\n'
expect text/x-awl consegna.AWL "$first"
expect text/x-awl minuscolo.awl "$first"
expect text/x-awl vecchio.AWL 'TITLE=senza blocco\r\n'
expect text/x-awl senza_nome "$first"
# The name decides, and a text that only begins like one is none.
expect text/plain appunti.txt "$first"
expect text/plain appunti 'ORGANIZATION_BLOCK MAIN:OB10\n'
expect text/plain altro 'ORGANIZATION_BLOCK OB 1\r\nBEGIN\r\n'
expect text/plain discorso 'Il blocco ORGANIZATION_BLOCK MAIN:OB1\n apre il programma.\n'
expect application/zip consegne.zip 'PK\003\004\024\000\000\000\000\000'
