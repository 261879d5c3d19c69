# The manual pages of a public header, one for each of its named parts that has functions, and one for the header.
#   awk -v version=6.1 -v folder=FOLDER -f header.awk HEADER
# A page has the names of the generic functions, their declarations, the comments, and a list of the kernels; the names of
# generic functions lead to it.
function escaped(text) {
  gsub(/\\/, "\\e", text)
  gsub(/-/, "\\-", text)
  sub(/^[.']/, "\\\\\\&&", text)
  return text
}

# What a comment's lines say, with the stars removed, as troff: paragraphs, lists, and lines that stay as they are.
function troff(text,    lines, count, i, line, out, as_it_is, wanted) {
  count = split(text, lines, "\n")
  for (i = 1; i <= count; ++i) {
    line = lines[i]
    if (line ~ /^\|-/) continue
    wanted = line ~ /^    / || line ~ /^\|/ || (as_it_is && line == "" && lines[i + 1] ~ /^    /)
    if (wanted != as_it_is) out = out (wanted ? ".RS 4\n.nf\n" : ".fi\n.RE\n")
    as_it_is = wanted
    if (wanted) {
      sub(/^    /, "", line)
      gsub(/\|/, " ", line)
      sub(/ +$/, "", line)
      out = out escaped(line) "\n"
    } else if (line == "" || line ~ /^(Errors|Sources|Hazards|buffer)[:,]/) {
      out = out ".PP\n" (line == "" ? "" : escaped(line) "\n")
    } else if (line ~ /^- /) {
      out = out ".IP \\(bu 2\n" escaped(substr(line, 3)) "\n"
    } else {
      sub(/^ +/, "", line)
      out = out escaped(line) "\n"
    }
  }
  out = out (as_it_is ? ".fi\n.RE\n" : "")
  gsub(/(\.PP\n)+/, ".PP\n", out)
  sub(/\.PP\n$/, "", out)
  return out
}

function name_of(declaration) {
  sub(/\(.*/, "", declaration)
  sub(/.*[ *]/, "", declaration)
  return declaration
}

# "xfmHartley_12_32f" is a kernel.
function is_kernel(name) { return name ~ /_[0-9]+_(32|64)fc?$/ }

function add(list, name) { return list (list == "" ? "" : ", ") escaped(name) }

function write_page(page, names, brief, synopsis, description, kernels,    file) {
  file = folder "/" page ".3"
  print ".\\\" Written by docs/man/header.awk from " header > file
  print ".TH " page " 3 \"\" \"xfm " version "\" \"xfm\"\n.SH NAME\n" names " \\- " escaped(brief) > file
  print ".nh\n.SH SYNOPSIS\n.nf\n#include <" header ">\n" synopsis ".fi" > file
  printf ".SH DESCRIPTION\n%s", description > file
  if (kernels != "") print ".SH KERNELS\n.ad l\n" kernels > file
  pages[++page_count] = page
  file_of[page_count] = file
}

function first_sentence(text) {
  gsub(/\n/, " ", text)
  sub(/^ +/, "", text)
  if (match(text, /\.( |$)/)) text = substr(text, 1, RSTART - 1)
  return text
}

# The part that ends here: items are comments, each with its declarations. A part that has no name of its own is named for
# its first function.
function end_part(    i, j, count, parts, name, names, synopsis, description, kernels, seen, shown, page, heads) {
  page = "xfm" part
  gsub(/ /, "", page)
  if (part ~ /[ -]/ && part !~ /^(Many|Lookup) /) {
    page = name_of(declared[1])
    sub(/_(32|64)fc?$/, "", page)
  }
  for (i = 1; i <= items; ++i) {
    count = split(declared[i], parts, "\n")
    heads = ""
    for (j = 1; j < count; ++j) {
      name = name_of(parts[j])
      shown = parts[j]
      if (is_kernel(name)) {
        kernels = add(kernels, name)
        sub(/_[0-9]+_/, "_N_", shown)
        if (seen[name_of(shown)]++) continue
      } else {
        names = add(names, name)
        heads = add(heads, name)
        if (name != page) print ".so man3/" page ".3" > (folder "/" name ".3")
      }
      synopsis = synopsis escaped(shown) "\n"
    }
    if (heads != "") description = description (items > 1 ? ".SS " heads "\n" : "") troff(comments[i])
  }
  if (names == "") return
  write_page(page, names, first_sentence(part_text == "" ? comments[1] : part_text), synopsis, \
             (part_text == "" ? "" : troff(part_text)) description, kernels)
}

FNR == 1 {
  header = FILENAME
  sub(/.*\//, "", header)
  overview_page = header
  sub(/\.h$/, "", overview_page)
}
/^\/\*\*/ { inside = 1; text = "" }
inside {
  line = $0
  closed = line ~ /\*\/$/
  sub(/^ ?\/?\*+ ?/, "", line)
  sub(/ ?\*?\/?$/, "", line)
  sub(/ *\*$/, "", line)
  sub(/^@return /, "Returns ", line)
  if (line ~ /^@name /) { part = substr(line, 7); items = 0; opening = 1 }
  else if (line ~ /^@brief /) overview = substr(line, 8)
  else if (line ~ /^@} *$/) { end_part(); part = "" }
  else if (line !~ /^(@|xfm[A-Za-z0-9_]+_TYPE$)/ && (text != "" || line != "")) text = text line "\n"
  if (!closed) next
  inside = 0
  sub(/\n$/, "", text)
  if (overview != "" && overview_text == "") overview_text = text
  else if (opening) part_text = text
  else if (part != "") { comments[++items] = text; declared[items] = "" }
  else comment = text
  if (part == "Scale flags" && opening) scale_text = text
  opening = 0
  next
}
/^(xfmStatus|XFM_LOOKUP_INLINE|const|int|void\*?) .*\(/ {
  line = $0
  while (line !~ /[;{]$/ && (getline more) > 0) line = line "\n" more
  gsub(/\n */, " ", line)
  sub(/^XFM_LOOKUP_INLINE /, "", line)
  sub(/ \{$/, ";", line)
  if (part != "") {
    declared[items] = declared[items] line "\n"
  } else {  # of no part: on the page of the header
    name = name_of(line)
    loose_names = add(loose_names, name)
    loose_synopsis = loose_synopsis escaped(line) "\n"
    loose_text = loose_text ".SS " name "\n" troff(comment)
    print ".so man3/" overview_page ".3" > (folder "/" name ".3")
  }
}
END {
  sub(/^[^:]*: /, "", overview)
  sub(/\.$/, "", overview)
  text = troff(overview_text) loose_text
  if (scale_text != "") text = text ".SS Scale flags\n" troff(scale_text)
  for (i = 1; i <= page_count; ++i) see = see (i > 1 ? ", " : "") ".BR " pages[i] " (3)"
  gsub(/, /, " ,\n", see)
  see_also = ".SH SEE ALSO\n"
  count = page_count
  names = overview_page (loose_names == "" ? "" : ", ") loose_names
  write_page(overview_page, names, overview, loose_synopsis, text (count > 0 ? see_also see "\n" : ""), "")
  for (i = 1; i <= count; ++i) printf "%s", see_also ".BR " overview_page " (3)\n" > file_of[i]
}
