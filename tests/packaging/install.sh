#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the build into folders, a component each, and looks whether what a student gets is whole
# and what a teacher gets stays apart from it: programs that start through their links, help pages
# where the program looks for them and nothing of the build among them, examples and scripts but no
# solution of an exercise, valid entries for the desktop, pages of the manual without a complaint of
# their formatter, one version everywhere. Usage: install.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
for component in program teacher library; do
  cmake --install "$1" --prefix "$folder/$component" --component $component >>"$folder/log"
done
cmake --install "$1" --prefix "$folder/all" >>"$folder/log"
list() { (cd "$1" && find . ! -type d | sort); }
# Nothing in two packages, and nothing in none.
diff <(list "$folder/all") <(for c in program teacher library; do list "$folder/$c"; done | sort)

usr=$folder/program
"$usr/bin/tavorno-banco" compila "$usr/share/tavorno/examples/autoritenuta.AWL" |
  grep -q 'compilate con successo'
QT_QPA_PLATFORM=none "$usr/bin/tavorno" --help | grep -q 'tavorno \[FILE.AWL\]'
home=$(dirname "$(readlink -f "$usr/bin/tavorno")")
[ -x "$home/tavorno" ]
[ -f "$home/HTML/Index.htm" ]
[ -f "$home/HTML/Panel/US-17.htm" ]
[ -z "$(find "$usr/share/tavorno/HTML" -iname '*cmake*')" ]

# A script that names another one finds it, and grades a teacher's solution in full.
solutions=$folder/teacher/share/tavorno/solutions
diff <(list "$solutions") <(cd "$2/examples" && find . -name 'us[0-9][0-9].AWL' | sort)
[ -z "$(find "$usr" -name 'us[0-9][0-9].AWL')" ]
[ -z "$(find "$usr" -name '*.lua' -exec grep -l END_ORGANIZATION_BLOCK {} +)" ]
diff <(list "$usr/share/tavorno/examples") \
  <(cd "$2/examples" && find . -name '*.lua' -o -name '*.AWL' ! -name 'us[0-9][0-9].AWL' | sort)
"$usr/bin/tavorno-banco" prova "$solutions/us05.AWL" "$usr/share/tavorno/examples/us05.lua" \
  --impianto 5 >"$folder/marks"

desktop-file-validate "$usr/share/applications/org.tavorno.Tavorno.desktop"
appstreamcli validate --no-net "$usr/share/metainfo/org.tavorno.Tavorno.metainfo.xml"
for icon in apps/org.tavorno.Tavorno mimetypes/text-x-awl; do
  [ -f "$usr/share/icons/hicolor/scalable/$icon.svg" ]
done

# Both languages of each page have the same options; what the formatter says is a fault.
options() { grep -oE '\\-\\-[a-z\\-]+' "$1" | sort; }
for program in tavorno tavorno-banco; do
  for page in "$usr/share/man/man1/$program.1" "$usr/share/man/it/man1/$program.1"; do
    LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 "$page" >"$folder/shown" 2>"$folder/complaints"
    if [ -s "$folder/complaints" ]; then cat "$folder/complaints"; exit 1; fi
    options "$page" | grep -qF 'version'
  done
  diff <(options "$usr/share/man/man1/$program.1") <(options "$usr/share/man/it/man1/$program.1")
done

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt")
grep -q "<release version=\"$version\"" "$usr/share/metainfo/org.tavorno.Tavorno.metainfo.xml"
grep -q "^tavorno ($version) " "$2/packaging/debian/changelog"
[ "$("$usr/bin/tavorno" --version)" = "tavorno $version" ]
