#!/bin/sh
# refused.sh SOURCE CASE COMPILER...: the case compiles where it is right, and where it is wrong the compiler complains
# about that line.
set -eu
source=$1 case=$2
shift 2
"$@" -D"$case" -DXFM_RIGHT -fsyntax-only "$source"
if errors=$("$@" -D"$case" -fsyntax-only "$source" 2>&1); then
  echo "FAILED: the mistake compiles"
  exit 1
fi
echo "$errors"
lines=$(awk -v name="defined($case)" '/^#/ { here = index($0, name); next } here { print NR }' "$source")
for line in $lines; do
  case $errors in *"refused.cpp:$line:"*) exit 0 ;; esac
done
echo "FAILED: the compiler complains about something else"
exit 1
