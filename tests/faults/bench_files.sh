#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Every file that the bench writes, on a disk that fails: a message, status 1, the old file whole and
# nothing else left. Usage: bench_files.sh BENCH FAILING_DISK EXAMPLES
set -euo pipefail
bench=$1 library=$2 examples=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/out" "$work/class"
cp "$examples/us00.AWL" "$work/class/rossi.AWL"
cp "$examples/autoritenuta.AWL" "$work/class/bianchi.AWL"
project=$examples/us00.AWL script=$examples/us00.lua
tried=0

fail() {
  echo "FAILED: $*: status $status: $(cat "$work/stderr")" >&2
  exit 1
}
# Runs the bench on the failing disk. Usage: run FAULT ARGS...
run() {
  local fault=$1
  shift
  status=0
  tried=$((tried + 1))
  LD_PRELOAD=$library ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 TAVORNO_FAULT=$fault \
    TAVORNO_FAULT_IN=$work/out "$bench" "$@" >/dev/null 2>"$work/stderr" || status=$?
}

reasons=(create:ENOSPC:pieno create:EROFS:'sola lettura' write:ENOSPC:pieno write:EIO:'errore del disco'
  short:ENOSPC:pieno short:EIO:'errore del disco' fsync:EIO:'errore del disco' rename:EIO:'errore del disco')

# Usage: report OPTION COMMAND...; the file's name goes behind the option
report() {
  local option=$1 file=$work/out/rapporto.txt reason fault
  shift
  run '' "$@" "$option" "$file"
  [ $status -le 1 ] && [ -s "$file" ] || fail "$* $option without a fault"
  local good=$status
  cp "$file" "$work/whole"
  for reason in "${reasons[@]}"; do
    fault=${reason%:*}
    echo vecchio >"$file"
    run "$fault" "$@" "$option" "$file"
    [ $status -eq 1 ] || fail "$* $option with $fault"
    grep -q "impossibile scrivere .*${reason##*:}" "$work/stderr" || fail "$* $option with $fault: the message"
    [ "$(cat "$file")" = vecchio ] || fail "$* $option with $fault: the old file"
    [ "$(ls -A "$work/out")" = rapporto.txt ] || fail "$* $option with $fault: $(ls -A "$work/out")"
  done
  run slow:EINTR "$@" "$option" "$file"
  [ $status -eq "$good" ] && cmp -s "$file" "$work/whole" || fail "$* $option, a part at a time"
  rm "$file"
}

report --vcd esegui "$project" --ms 100
report --svg esegui "$project" --ms 100
report --svg scala "$project"
run '' registra "$project" --ms 100 --impianto 0 --uscita "$work/prova.seduta"
[ $status -eq 0 ] || fail "registra without a fault"
report --uscita registra "$project" --ms 100
for option in --vcd --svg --script; do report $option rivivi "$work/prova.seduta"; done
for option in --csv --junit --vcd --svg; do report $option prova "$project" "$script" --impianto 0; done

# The reports of a class: each is whole or not there, and each that failed is named.
run '' classe "$work/class" "$script" --impianto 0 --uscita "$work/out/voti"
[ $status -le 1 ] || fail "classe without a fault"
mv "$work/out/voti" "$work/whole-class"
for reason in "${reasons[@]}"; do
  fault=${reason%:*}
  mkdir "$work/out/voti"
  run "$fault" classe "$work/class" "$script" --impianto 0 --uscita "$work/out/voti"
  [ $status -eq 1 ] || fail "classe with $fault"
  grep -q "impossibile scrivere .*${reason##*:}" "$work/stderr" || fail "classe with $fault: the message"
  [ -z "$(find "$work/out/voti" -type f)" ] || fail "classe with $fault: $(find "$work/out/voti" -type f)"
  rm -r "$work/out/voti"
done
echo "$tried calls, each report whole or not there"
