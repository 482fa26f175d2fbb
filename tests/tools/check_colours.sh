#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The windows' own colours stand in widgets/colours.h alone, where a test looks at them. What the
# parts without windows write to files, on white paper, is theirs. Usage: check_colours.sh SOURCE_DIR
set -euo pipefail
cd "$1"

# A number, a name of the window library's, or a notation of style sheets.
colour='QColor[ (a-z_]*[({][^)]*(0x|[0-9]+ *, *[0-9])'
colour+='|\bqRgba?\( *[0-9]'
colour+='|Qt::(black|white|(dark|light)?[gG]r[ae]y|(dark)?([rR]ed|[gG]reen|[bB]lue|[cC]yan|[mM]agenta|[yY]ellow))\b'
colour+='|"[^"]*#([0-9a-fA-F]{3}|[0-9a-fA-F]{6})\b[^"]*"'
colour+='|"[^"]*\b(rgb|hsl|hsv)a?\('

folders=(awl/ui ladder/ui plants/host recorder/ui grading/ui panel widgets)
found=$(grep -rnE --include='*.cpp' --include='*.h' "$colour" "${folders[@]}" |
  grep -v '^widgets/colours\.' || true)
[ -z "$found" ] && exit
printf 'colours outside widgets/colours.h:\n%s\n' "$found"
exit 1
