#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build into a folder and looks whether what a student gets is whole: programs that
# start through their links, help pages where the program looks for them and nothing of the build
# among them, a valid entry for the desktop's menu, one version everywhere. Usage: install.sh BUILD_DIR
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake --install "$1" --prefix "$folder/usr" >"$folder/log"

"$folder/usr/bin/tavorno-banco" compila "$folder/usr/share/doc/tavorno/examples/autoritenuta.AWL" |
  grep -q 'compilate con successo'
home=$(dirname "$(readlink -f "$folder/usr/bin/tavorno")")
[ -x "$home/tavorno" ]
[ -f "$home/HTML/Index.htm" ]
[ -f "$home/HTML/Panel/US-17.htm" ]
[ -z "$(find "$home/HTML" -iname '*cmake*')" ]
[ -f "$folder/usr/share/icons/hicolor/scalable/apps/org.tavorno.Tavorno.svg" ]
desktop-file-validate "$folder/usr/share/applications/org.tavorno.Tavorno.desktop"
appstreamcli validate --no-net "$folder/usr/share/metainfo/org.tavorno.Tavorno.metainfo.xml"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt")
grep -q "<release version=\"$version\"" "$folder/usr/share/metainfo/org.tavorno.Tavorno.metainfo.xml"
