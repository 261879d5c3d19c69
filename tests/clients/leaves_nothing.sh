#!/bin/sh
# usage: leaves_nothing.sh NM INCLUDE-FOLDER OUTPUT-FOLDER COMPILER
# Passes if, in C and in C++, a file with the header of the lookup asks for the kernels whose tables it uses and for no
# others.
set -eu
nm=$1 include=$2 output=$3 compiler=$4
mkdir -p "$output"

imports() { # LANGUAGE BODY: how many functions of xfm a file with this function imports
  object=$output/leaves_nothing.$1.o
  printf '#include "xfm_lookup.h"\nconst void* ask(int32_t n);\nconst void* ask(int32_t n) { %s }\n' "$2" |
    "$compiler" -I "$include" -O0 -x "$1" -c - -o "$object"
  "$nm" --undefined-only "$object" | grep -c "$3" || true
}

expect() { # COUNT LANGUAGE BODY NAMES
  found=$(imports "$2" "$3" "$4")
  [ "$found" = "$1" ] && return
  echo "$2, $3: $found imports of $4 instead of $1"
  exit 1
}

for language in c c++; do
  expect 0 $language 'return xfmStatusText(n);' ' xfm'
  expect 0 $language 'return xfmDCT4IsServed_32f(n) ? "" : 0;' ' xfm'
  expect 63 $language 'return xfmLookupHartley_32f(n) != 0 ? "" : 0;' ' xfm'
  expect 63 $language 'return xfmLookupHartley_32f(n) != 0 ? "" : 0;' ' xfmHartley_[0-9]*_32f$'
done
