# A public header as the site needs it. awk -f header.awk HEADER
# In a header one comment holds for all declarations up to the next comment. Here each declaration has the comment's first
# sentence, and refers to the first one for the rest. A named part of the header becomes a topic, below that of the header;
# the comment of a family becomes the text of its topic.
FNR == 1 {
  header = FILENAME
  sub(/.*\//, "", header)
  parent = header
  gsub(/\./, "_", parent)
  print "/** @defgroup " parent " " header " */"
}
/^\/\*\* @name / {
  topic = substr($0, 11)
  title = topic
  gsub(/[ -]/, "_", topic)
  getline line
  if (line ~ /^ \* xfm/) {
    title = substr(line, 4)
    line = " *"
  }
  family = title ~ /_N_|^(Many|Lookup) /
  print "/** @defgroup " topic " " title "\n * @ingroup " parent
  if (!family) print line
  named = 1
  next
}
family && /^ \* @{ \*\/$/ { next }  # after the text
/^\/\*\* @} \*\// { named = 0 }
/^\/\*\*/ { text = ""; comment = 1 }
comment {
  text = text " " $0
  closed = sub(/\*\/$/, family ? "\n * @{ */" : "*/")
  # Flags and paragraphs of their own.
  if (family && /XFM_SCALE_NONE/) sub(/XFM_SCALE_NONE/, "@ref Scale_flags \"scale flags\"")
  if (/^ \* (Sources|Hazards):/) print " *"
  if (family) sub(/^\/\*\*/, " *")
  print
  if (closed) {
    brief = text
    gsub(/\/\*\*|\*\/| \* /, " ", brief)
    gsub(/ +/, " ", brief)
    sub(/^ /, "", brief)
    if (match(brief, /[.;:]( |$)/)) brief = substr(brief, 1, RSTART - 1)
    comment = 0
    commented = !family
    if (family) of = "@ref " topic
    family = 0
  }
  next
}
named && /^(xfmStatus|XFM_LOOKUP_INLINE) .*\(/ {
  if (commented) {
    of = $0
    sub(/\(.*/, "()", of)
    sub(/.* /, "", of)
  } else {
    print "/** " brief ". See " of ". */"
  }
  commented = 0
}
{ print }
