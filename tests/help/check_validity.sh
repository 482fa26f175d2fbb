#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails on the first word that the validator has to say about a page or a picture of the help.
# Usage: check_validity.sh HELP_DIR
set -uo pipefail
cd "$1" || exit 1
command -v tidy >/dev/null || { echo "tidy is missing"; exit 1; }
bad=0
pages=0
while IFS= read -r -d '' file; do
  pages=$((pages + 1))
  options=()
  case $file in *.svg) options=(-xml) ;; esac
  words=$(tidy -q -e "${options[@]}" "$file" 2>&1) && [ -z "$words" ] && continue
  printf '%s:\n%s\n' "$file" "$words"
  bad=1
done < <(find . \( -name '*.htm' -o -name '*.svg' \) -print0)
[ "$pages" -gt 20 ] || { echo "only $pages files: no help here"; bad=1; }
exit $bad
