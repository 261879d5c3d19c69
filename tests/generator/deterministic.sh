#!/bin/sh
# usage: deterministic.sh XFMGEN FOLDER TARGET...
# Passes if the generator writes the same bytes for these targets to two folders, from two working directories.
set -eu
generator=$1 place=$2
shift 2
rm -rf "$place"
mkdir -p "$place/one" "$place/another/place"
(cd "$place" && "$generator" --target "$@" --out one --batches one/many)
(cd "$place/another/place" && "$generator" --target "$@" --out "$place/another/place/two" --batches "$place/another/place/two/many")
[ "$(find "$place/one" -name 'kernels_*.cpp' | wc -l)" -gt 10 ] # something was written
diff -r "$place/one" "$place/another/place/two"
