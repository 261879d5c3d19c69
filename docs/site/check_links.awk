# Every link of the site leads somewhere: awk -f check_links.awk FOLDER/*.html FOLDER/*.js. Links to other sites are not
# looked at.
BEGIN { RS = "[<>]" }
function remember(link) {
  if (link ~ /^([a-z]+:|#?$)/) return
  links[FILENAME SUBSEP link] = 1
}
FNR == 1 {
  folder = FILENAME
  sub(/[^\/]*$/, "", folder)
  ++files
}
FILENAME ~ /\.js$/ {  # the menu and the tree, in which doxygen has places that are on another page
  while (match($0, /"[A-Za-z0-9_-]+\.html/)) {
    remember(substr($0, RSTART + 1, RLENGTH - 1))
    $0 = substr($0, RSTART + RLENGTH)
  }
  next
}
{
  while (match($0, /(href|src|id|name)="[^"]*"/)) {
    attribute = substr($0, RSTART, RLENGTH - 1)
    $0 = substr($0, RSTART + RLENGTH)
    value = attribute
    sub(/^[a-z]+="/, "", value)
    if (attribute ~ /^(id|name)/) anchors[FILENAME SUBSEP value] = 1
    else remember(value)
  }
}
END {
  for (key in links) {
    split(key, parts, SUBSEP)
    ++count
    split(parts[2], target, "#")
    file = target[1] == "" ? parts[1] : folder target[1]
    if (!(file in known)) {
      known[file] = (getline line < file) >= 0
      close(file)
    }
    if (!known[file] || (parts[2] ~ /#/ && !((file SUBSEP target[2]) in anchors))) {
      print parts[1] ": leads nowhere: " parts[2]
      failed = 1
    }
  }
  print count " links in " files " files"
  if (count < 1000) failed = 1  # these are not the pages
  exit failed
}
