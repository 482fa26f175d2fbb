#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Pictures of the plants at rest, at work and in a fault, at one scale, and all of them on one sheet.
# Needs ImageMagick. Usage: plants.sh PICTURE_PREVIEW OUTPUT_DIR [SCALE]
set -euo pipefail
preview=$1
out=$2
scale=${3:-1}
mkdir -p "$out"
examples=$(cd "$(dirname "$0")/../../../examples" && pwd)
export QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=$scale

# Exercise, name of the state, and how it comes about (see picture_preview.cpp).
states="
00 work   premi:imgStart uscite:1010000000000000
00 fault  clic:ImgTer uscite:0001000000000000
01 work   uscite:0100100000000000
01 fault  clic:ImgTer doppio:imgKm1 uscite:0000001000000000
02 work   uscite:1100100000000000
02 fault  clic:imgRt uscite:0000001000000000
03 work   uscite:1011011000000000
03 fault  clic:imgRt clic:imgRt2 uscite:0000000011000000
04 work   uscite:1101000000000000 ms:600
04 fault  clic:ImgEm uscite:0000100000000000
05 work   uscite:1101000000000000 ms:400
05 fault  clic:ImgEm uscite:0000010000000000
06 work   uscite:1101010100000000 ms:400
06 fault  clic:ImgEm uscite:0000000000001000
07 work   uscite:1010101011000000 ms:900
07 fault  clic:ImgEm
08 work   uscite:1101000000000000 ms:4000
08 fault  uscite:0000100000000000 clic:imgP1
09 work   uscite:1101000000000000 ms:2000
09 fault  uscite:1101000000000000 ms:3200 premi:picFC
10 work   uscite:1101111000000000 ms:12000
10 fault  uscite:0000000000001000 clic:imgM(0) clic:imgM(3)
11 work   clic:cmdIng clic:imgPSB(0) uscite:1000000000000000 ms:2500
11 fault  clic:imgMI
12 work   uscite:1111010000000010 ms:9000
12 fault  clic:ImgEm uscite:0000000000000100
13 work   uscite:1000110000000000 ms:8000
13 fault  uscite:0000000000000010 clic:imgM(0) clic:ImgEm
14 work   uscite:0100000000000000 ms:6000
14 fault  regola:UpD1=9 uscite:0000000000000110
15 work   uscite:1110110000000000 ms:400
15 fault  clic:ImgEm uscite:0000000010000000
16 work   uscite:0110000000000000
16 call   premi:imgSB(1) uscite:1000100000000000
17 work   programma:$examples/us17.AWL ms:500 premi:imgP(0) ms:300 rilascia:imgP(0) ms:6000
17 fault  regola:UpD1=8 clic:imgFCA uscite:0000000010000000
"
for solution in "$examples"/us[0-9][0-9].AWL; do
  name=$(basename "$solution" .AWL)
  name=${name#us}
  "$preview" "$((10#$name))" "$out/US-$name-rest.png" "$scale" 2>/dev/null || true
done
while read -r exercise state steps; do
  [ -n "$exercise" ] || continue
  # shellcheck disable=SC2086
  "$preview" "$((10#$exercise))" "$out/US-$exercise-$state.png" "$scale" $steps
done <<<"$states"
# Three columns of nearly the same height; what is left goes between the pictures.
columns=('00 01 02 03 04 05' '06 07 08 09 10 17' '11 12 13 14 15 16')
# Usage: column NUMBER GAP
column() {
  local files=()
  for name in ${columns[$1]}; do files+=("$out/US-$name-work.png"); done
  convert "${files[@]}" -resize 440x -bordercolor '#dcd8cf' -border "4x$2" -append "$out/column-$1.png"
  identify -format %h "$out/column-$1.png"
}
heights=("$(column 0 4)" "$(column 1 4)" "$(column 2 4)")
tallest=$(printf '%s\n' "${heights[@]}" | sort -n | tail -1)
for number in 0 1 2; do column $number $((4 + (tallest - heights[number]) / 12)) >/dev/null; done
convert "$out"/column-?.png -background '#dcd8cf' +append -strip -depth 8 \
  -define png:compression-level=9 "PNG24:$out/overview.png"
rm "$out"/column-?.png
echo "pictures in $out"
