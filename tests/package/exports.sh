#!/bin/sh
# usage: exports.sh NM LIBRARY NAME...
# Passes if the shared library defines exactly these dynamic symbols, all of them functions.
set -eu
nm=$1 library=$2
shift 2
expected=$(printf 'T %s\n' "$@" | sort)
found=$("$nm" -D --defined-only "$library" | cut -d' ' -f2- | sort)
[ "$found" = "$expected" ] && exit
printf 'expected:\n%s\nfound:\n%s\n' "$expected" "$found"
exit 1
