# Of links from the pages in the folder ${docs} to headers, the text is left.
file(GLOB pages ${docs}/*.md)
foreach(page IN LISTS pages)
  file(READ ${page} text)
  string(REGEX REPLACE "\\[([^]]*)\\]\\(\\.\\./include/[^)]*\\)" "\\1" text "${text}")
  file(WRITE ${page} "${text}")
endforeach()
