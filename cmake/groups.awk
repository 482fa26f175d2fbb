# SPDX-License-Identifier: GPL-3.0-or-later
# Puts sources into groups that can be read as one text: what a source of a group keeps to itself is
# not called as anything that another one of the group has or includes. Reads all headers and then
# the sources; prints a group a line. Needs -v together=N, the most of a group.
function name_of(line, name) {
  sub(/^template *<.*> */, "", line)
  sub(/^using +/, "using = ", line)
  if (match(line, /^(struct|class|enum class|enum|union|using =) +[A-Za-z_0-9]+/))
    name = substr(line, RSTART, RLENGTH)
  else if (match(line, /[A-Za-z_0-9]+(\[[^]]*\])*( *=.*| *[({;].*|, .*)$/)) {
    name = substr(line, RSTART)
    sub(/[^A-Za-z_0-9].*$/, "", name)
  }
  sub(/^.* /, "", name)
  return name
}
# Adds to `seen` what a file includes, at once or by another, and to `visible` its names.
function gather(file, n, parts, i) {
  if (file in seen) return
  seen[file] = 1
  n = split(public[file], parts, " ")
  for (i = 1; i <= n; ++i) visible[parts[i]] = 1
  n = split(includes[file], parts, " ")
  for (i = 1; i <= n; ++i) gather(parts[i])
}
FNR == 1 {
  header = FILENAME ~ /\.h$/
  if (!header) files[++count] = FILENAME
  inside = 0
}
/^#include "/ {
  split($0, quoted, "\"")
  includes[FILENAME] = includes[FILENAME] quoted[2] " "
}
/^namespace \{/ { inside = 1; next }
/^}  \/\/ namespace$/ { inside = 0 }
(inside || header) && /^[A-Za-z]/ && !/^(namespace|using namespace|public|private|protected)/ {
  told = name_of($0) " "
  if (/^enum [A-Za-z_0-9]* *\{.*\}/) {  # whose values are names of their own
    values = $0
    sub(/^[^{]*\{/, "", values)
    gsub(/[^A-Za-z_0-9]+/, " ", values)
    told = told values " "
  }
  if (header) public[FILENAME] = public[FILENAME] told
  else own[FILENAME] = own[FILENAME] told
}
END {
  for (i = 1; i <= count; ++i) {
    n = split(own[files[i]], names, " ")
    delete seen
    delete visible
    gather(files[i])
    for (g = 1; g <= groups; ++g) {
      if (size[g] == together) continue
      clash = 0
      for (k = 1; k <= n && !clash; ++k) clash = (g, names[k]) in kept || (g, names[k]) in known
      if (!clash) for (name in visible) if ((g, name) in kept) { clash = 1; break }
      if (!clash) break
    }
    if (g > groups) groups = g
    for (k = 1; k <= n; ++k) kept[g, names[k]] = 1
    for (name in visible) known[g, name] = 1
    group[g] = group[g] " " files[i]
    ++size[g]
  }
  for (g = 1; g <= groups; ++g) print substr(group[g], 2)
}
