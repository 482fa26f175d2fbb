#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Repeats every figure of docs/reliability.md and prints it; ends with status 1 when a promise does not
# hold. TESTS is a build folder with tests (build/dev), BENCH an optimised bench, since 24 hours of a
# plant take minutes with sanitizers. The memory needs /usr/bin/time.
# Usage: reliability.sh TESTS BENCH [hostile|faults|kills|monkey|hours]...
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
tests=$(realpath -e "$1") bench=$(realpath -e "$2")
shift 2
[ $# -gt 0 ] || set -- hostile faults kills monkey hours
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# Each file of the fuzzers' corpus and each example, whole and cut, and what is no project at all.
hostile() {
  local file size part status tried=0 refused=0
  mkdir "$work/hostile"
  for file in "$root"/tests/fuzz/corpus/project/* "$root"/examples/*.AWL; do
    size=$(stat -c %s "$file")
    for part in 3 8; do
      head -c $((size * part / 8)) "$file" >"$work/hostile/${file##*/}.$part.AWL"
    done
  done
  head -c 100000 /dev/zero >"$work/hostile/zero.AWL"
  head -c 100000 "$bench" >"$work/hostile/program.AWL"
  head -c 20000000 /dev/zero >"$work/hostile/large.AWL"
  mkdir "$work/hostile/folder.AWL"
  ln -s round.AWL "$work/hostile/round.AWL"
  mkfifo "$work/hostile/pipe.AWL"
  for file in "$work"/hostile/*.AWL; do
    status=0
    timeout 60 "$bench" compila "$file" >/dev/null 2>"$work/stderr" || status=$?
    [ $status -le 2 ] || fail "$file: status $status"
    [ $status -ne 2 ] || [ -s "$work/stderr" ] || fail "$file: refused without a word"
    tried=$((tried + 1))
    [ $status -ne 2 ] || refused=$((refused + 1))
  done
  echo "hostile: $tried files, $refused refused with a reason, none ended the program"
}

faults() {
  ctest --test-dir "$tests" -R '^faults\.(project|bench|pictures|prints|recordings)$' --output-on-failure >"$work/log" 2>&1 ||
    { cat "$work/log"; fail "a fault of the disk"; }
  echo "faults: $(grep -c ' Passed ' "$work/log") groups hold"
  ctest --test-dir "$tests" -R '^faults\.bench$' -V | sed -n 's/^[0-9]*: \([0-9]* calls\)/faults of the bench: \1/p'
}

kills() { "$tests/tests/faults/kills" "${TAVORNO_KILLS:-200}"; }

monkey() {
  QT_QPA_PLATFORM=offscreen LSAN_OPTIONS="suppressions=$root/tests/gui/leaks_of_others.txt:print_suppressions=0" \
    "$root/tests/monkey/monkey.sh" "$tests/tests/monkey/monkey"
}

# Usage: run_plant NUMBER MS OUTPUT; prints the memory in KB
run_plant() {
  local words arguments i
  words=$(grep -v '^#' "$root/examples/us$1.args" | tr '\n' ' ')
  read -r -a arguments <<<"${words//, /,}"
  for i in "${!arguments[@]}"; do
    [ "${arguments[i]}" != --ms ] || arguments[i + 1]=$2
  done
  (cd "$root/examples" && /usr/bin/time -f %M "$bench" "${arguments[@]}" 2>&1 >"$3" | tail -1)
}
hours() {
  local n hour day again
  echo "plant  KB after 1 h  KB after 24 h  lines"
  for n in "$root"/examples/us[0-9][0-9].AWL; do
    n=$(basename "$n" .AWL)
    n=${n#us}
    hour=$(run_plant "$n" 3600000 "$work/hour")
    day=$(run_plant "$n" 86400000 "$work/day")
    again=$(run_plant "$n" 86400000 "$work/again")
    grep -q '^Fine: 86400000 ms' "$work/day" || fail "us$n did not last: $(tail -1 "$work/day")"
    cmp -s "$work/day" "$work/again" || fail "two runs of us$n differ"
    echo "us$n   $hour  $day  $(wc -l <"$work/day")"
    [ "$day" -lt $((hour + 20000)) ] && [ "$again" -lt $((hour + 20000)) ] || fail "us$n grows"
  done
  echo "hours: 24 of each plant, twice, equal byte for byte"
}

for part; do "$part"; done
