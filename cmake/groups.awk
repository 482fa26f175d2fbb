# SPDX-License-Identifier: GPL-3.0-or-later
# Puts sources into groups that can be read as one text: what a source of a group keeps to itself is
# not called as anything that another one of the group has or includes. Goes behind names.awk, which
# reads all headers and the sources; prints a group a line. Needs -v together=N, the most of a group.
# Adds to `seen` what a file includes, at once or by another, and to `visible` its names.
function gather(file, n, parts, i) {
  if (file in seen) return
  seen[file] = 1
  n = split(public[file], parts, " ")
  for (i = 1; i <= n; ++i) visible[parts[i]] = 1
  n = split(includes[file], parts, " ")
  for (i = 1; i <= n; ++i) gather(parts[i])
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
