# SPDX-License-Identifier: GPL-3.0-or-later
# Reads headers and then sources. Afterwards `files` has the sources, `own` what each of them keeps to
# itself, `public` what a header tells to all and `includes` what a file includes.
function name_of(line, name) {
  sub(/^template *<.*> */, "", line)
  while (gsub(/<[^<>]*>/, "", line)) {}  # arguments of templates
  sub(/^using +/, "using = ", line)
  if (match(line, /^(struct|class|enum class|enum|union|using =) +[A-Za-z_0-9]+/))
    name = substr(line, RSTART, RLENGTH)
  else if (match(line, /[A-Za-z_0-9]+(\[[^]]*\])*( *=.*| *[({;].*|, .*)$/)) {
    if (substr(line, RSTART - 1, 1) == ":") return ""  # a member, told elsewhere
    name = substr(line, RSTART)
    sub(/[^A-Za-z_0-9].*$/, "", name)
  }
  sub(/^.* /, "", name)
  return name
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
(inside || header) && /^[A-Za-z]/ && !/^(namespace|using namespace|using enum|static_assert|public|private|protected)/ {
  told = name_of($0) " "
  if (/^enum [A-Za-z_0-9]* *\{.*\}/) {  # whose values are names of their own
    values = $0
    sub(/^[^{]*\{/, "", values)
    gsub(/[^A-Za-z_0-9]+/, " ", values)
    told = told values " "
  }
  rest = $0
  while (match(rest, /, [A-Za-z_0-9]+ = /)) {  # several constants of one type
    told = told substr(rest, RSTART + 2, RLENGTH - 4)
    rest = substr(rest, RSTART + RLENGTH)
  }
  if (header) public[FILENAME] = public[FILENAME] told
  else own[FILENAME] = own[FILENAME] told
}
