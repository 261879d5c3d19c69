#!/bin/sh
# usage: deterministic.sh XFMGEN FOLDER
# Passes if the generator writes the same bytes to two folders, from two working directories.
set -eu
generator=$1 place=$2
rm -rf "$place"
mkdir -p "$place/one" "$place/another/place"
(cd "$place" && "$generator" --out one)
(cd "$place/another/place" && "$generator" --out "$place/another/place/two")
[ "$(ls "$place/one" | wc -l)" -gt 10 ] # something was written
diff -r "$place/one" "$place/another/place/two"
