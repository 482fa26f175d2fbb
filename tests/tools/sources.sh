# SPDX-License-Identifier: GPL-3.0-or-later
# Read by the checks. Prints the program's sources, a line each, in order; what another system's
# headers are needed for cannot be looked at here.
sources() {
  local file
  find . -path './build*' -prune -o -path ./tests -prune -o -path ./benchmarks -prune -o \
    -name '*.cpp' -printf '%P\n' | LC_ALL=C sort |
    while read -r file; do
      [[ $file == *_windows.cpp && -e ${file%_windows.cpp}_posix.cpp ]] ||
        grep -q '^#include <windows.h>' "$file" || printf '%s\n' "$file"
    done
}
