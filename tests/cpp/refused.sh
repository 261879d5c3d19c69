#!/bin/sh
# refused.sh SOURCE COMPILER...: all cases compile where they are right; where they are wrong the compiler complains about
# each of them.
set -eu
source=$1
shift
"$@" -DXFM_RIGHT -fsyntax-only "$source"
if errors=$("$@" -fsyntax-only "$source" 2>&1); then
  echo "FAILED: the mistakes compile"
  exit 1
fi
lines=$(echo "$errors" | sed -n 's/.*refused\.cpp:\([0-9]*\):.*/\1/p' | tr '\n' ' ')
awk -v lines="$lines" '
  BEGIN { count = split(lines, list, " "); for (i = 1; i <= count; ++i) complaint[list[i]] = 1 }
  /^namespace / { name = $2; refused = 0; ++cases }
  complaint[NR] { refused = 1 }
  /^}.*namespace/ && !refused { print "FAILED: compiles: " name; wrong = 1 }
  END { print cases " cases"; exit wrong || cases < 30 }' "$source"
