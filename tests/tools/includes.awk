# SPDX-License-Identifier: GPL-3.0-or-later
# Finds arrows between folders that run up, and circles of files. A header and its source are one
# file here, named without extension. Input: part=1 the table of folders, part=2 "file<TAB>included
# file" for each include; all paths from the root of the sources.

function fault(text) { print text; faults++ }

# The innermost folder of the table that holds a path, or "".
function home(path) {
  while (sub(/\/[^\/]*$/, "", path)) if (path in order) return path
  return ""
}

function stem(path) { sub(/\.[a-z]+(\.in)?$/, "", path); return path }

# Tarjan's way through the graph; whatever leaves the stack together is one circle.
function visit(node,    list, count, i, next_node, members, size) {
  number[node] = lowest[node] = ++visited
  stack[++depth] = node
  on_stack[node] = 1
  count = split(arrows[node], list, " ")
  for (i = 1; i <= count; i++) {
    next_node = list[i]
    if (!(next_node in number)) {
      visit(next_node)
      if (lowest[next_node] < lowest[node]) lowest[node] = lowest[next_node]
    } else if (on_stack[next_node] && number[next_node] < lowest[node]) lowest[node] = number[next_node]
  }
  if (lowest[node] != number[node]) return
  size = 0
  do {
    members[++size] = stack[depth]
    on_stack[stack[depth]] = 0
  } while (stack[depth--] != node)
  if (size > 1) circle(members, size)
}

function circle(members, size,    i, k, swap, text) {
  for (i = 1; i < size; i++)
    for (k = i + 1; k <= size; k++)
      if (members[k] < members[i]) { swap = members[i]; members[i] = members[k]; members[k] = swap }
  text = members[1]
  for (i = 2; i <= size; i++) text = text " " members[i]
  fault("circle of files: " text)
}

part == 1 && (/^#/ || /^$/) { next }

part == 1 {
  folder = $1
  sub(/:$/, "", folder)
  for (i = 2; i <= NF; i++) {
    if (!($i in order)) fault(folder " may know " $i ", which does not stand above it")
    may[folder, $i] = 1
  }
  order[folder] = ++folders
  may[folder, folder] = 1
  next
}

{
  includes++
  while (sub(/[^\/\t]+\/\.\.\//, "")) continue
  split($0, pair, "\t")
  from = home(pair[1])
  to = home(pair[2])
  if (from == "") fault(pair[1] ": its folder has no place in the order")
  else if (to == "") fault(pair[1] ": the folder of " pair[2] " has no place in the order")
  else if (!((from, to) in may)) fault(pair[1] ": " from " may not know " pair[2])
  a = stem(pair[1])
  b = stem(pair[2])
  if (a != b) arrows[a] = arrows[a] " " b
  nodes[a] = nodes[b] = 1
}

END {
  if (!includes) fault("no includes were found")
  for (node in nodes) if (!(node in number)) visit(node)
  exit faults > 0
}
