# SPDX-License-Identifier: GPL-3.0-or-later
# Prints sources as one text that compiles, for tools that look at them: what a source keeps to itself
# gets the source's number. Goes behind cmake/names.awk, which reads the sources.
function renamed(line, number, text, before, word) {
  text = ""
  while (match(line, /[A-Za-z_][A-Za-z_0-9]*/)) {
    before = substr(line, 1, RSTART - 1)
    word = substr(line, RSTART, RLENGTH)
    line = substr(line, RSTART + RLENGTH)
    text = text before
    # Not the member of something else, and not of another namespace.
    text = text word ((number, word) in apart && text !~ /(\.|->|::)$/ ? "_" number : "")
  }
  return text line
}
END {
  for (i = 1; i <= count; ++i) {
    n = split(own[files[i]], names, " ")
    for (k = 1; k <= n; ++k) apart[i, names[k]] = 1
    while ((getline line < files[i]) > 0) print line ~ /^#include/ ? line : renamed(line, i)
  }
}
