# A page as the site needs it: doxygen of Debian 12 does not know the names that Markdown gives to headings, and links to
# files are links to pages. awk -f markdown.awk PAGE
#   [text](layouts.md#conversion)   becomes  [text](@ref layouts_conversion)
#   ## Conversion                   becomes  ## Conversion {#layouts_conversion}
#   [layouts.md](layouts.md)        becomes  [The packed layouts of real transforms](@ref layouts)
#   `xfmHartley_N_32f`              becomes  [xfmHartley_N_32f](@ref Hartley)
# Links to files that are not in the site become plain text. The first page, docs/README.md, has the others below it.

# The name of a page, by its path as seen from this one.
function page_of(path,    folder) {
  if (path !~ /README\.md$/) {
    sub(/.*\//, "", path)
    sub(/\.md$/, "", path)
    return tolower(path)
  }
  folder = here "/" path
  if (folder ~ /\/bench\/README\.md$/) return "bench"
  return folder ~ /\/docs\/README\.md$/ ? "index" : "readme"
}

function slug(heading) {
  heading = tolower(heading)
  gsub(/[^a-z0-9 _-]/, "", heading)
  gsub(/[ -]/, "_", heading)
  return heading
}

function exists(path,    line, found) {
  found = (getline line < path) >= 0
  close(path)
  return found
}

# The first heading of a page.
function title_of(path,    line) {
  getline line < path
  close(path)
  sub(/^# */, "", line)
  return line
}

function link(text, target,    parts, page) {
  if (target ~ /^[a-z]+:/) return "[" text "](" target ")"
  split(target, parts, "#")
  if (parts[1] == "") return "[" text "](@ref " this "_" slug(parts[2]) ")"
  if (parts[1] ~ /include\/.*\.hp*$/) {
    sub(/.*include\//, "", parts[1])
    return "[" text "](@ref " parts[1] ")"
  }
  if (parts[1] !~ /\.md$/ || !exists(here "/" parts[1])) return text
  page = page_of(parts[1])
  if (substr(parts[1], length(parts[1]) - length(text) + 1) == text) text = title_of(here "/" parts[1])
  if (parts[2] != "") return "[" text "](@ref " page "_" slug(parts[2]) ")"
  if (this == "index" && !seen[page]++ && page != "index") return "@subpage " page " \"" text "\""
  return "[" text "](@ref " page ")"
}

# Families named in code lead to their descriptions, and other functions to theirs.
function with_functions(line,    out, name, target) {
  while (match(line, /`xfm[A-Za-z0-9_]+`/)) {
    name = target = substr(line, RSTART + 1, RLENGTH - 2)
    if (name ~ /^xfm(Many)?(DFT(Fwd|Inv)_[A-Za-z]+|Hartley|WHT|DCT4)(_N)?(_(32|64)fc?)?$/) {
      sub(/^xfm(Many)?/, target ~ /^xfmMany/ ? "Many_" : "", target)
      sub(/(_N)?(_(32|64)fc?)?$/, "", target)
      target = "[" name "](@ref " target ")"
    } else {
      target = "`" name "`"
    }
    out = out substr(line, 1, RSTART - 1) target
    line = substr(line, RSTART + RLENGTH)
  }
  return out line
}

function with_links(line,    out, text, target) {
  while (match(line, /\[[^][]*\]\([^()]*\)/)) {
    if (substr(line, RSTART - 1, 1) == "!") {  # a picture
      out = out substr(line, 1, RSTART + RLENGTH - 1)
    } else {
      text = target = substr(line, RSTART, RLENGTH)
      sub(/^\[/, "", text)
      sub(/\]\(.*/, "", text)
      sub(/.*\]\(/, "", target)
      sub(/\)$/, "", target)
      out = out substr(line, 1, RSTART - 1) link(text, target)
    }
    line = substr(line, RSTART + RLENGTH)
  }
  return out line
}

FNR == 1 {
  here = FILENAME
  sub(/\/[^\/]*$/, "", here)
  name = FILENAME
  sub(/.*\//, "", name)
  this = page_of(name)
}

/^```/ {
  code = !code
  sub(/^```(c|cpp|c\+\+)$/, "```{.cpp}")
  sub(/^```(sh|text|asm|cmake)$/, "```{.txt}")
  print
  next
}
code || /^    [^ ]/ { print; next }
/^<!--.*-->$/ { next }
/^# / {
  print this == "index" ? $0 : $0 " {#" this "}\n\n[TOC]"
  next
}
/^##/ {
  heading = $0
  sub(/^#+ */, "", heading)
  print $0 " {#" this "_" slug(heading) "}"
  next
}
{ print with_functions(with_links($0)) }
