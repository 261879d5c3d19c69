#!/bin/sh
# usage: deterministic.sh XFMGEN FOLDER TARGET...
# Passes if the generator writes the same bytes for each target to two folders, from two working directories.
set -eu
generator=$1 place=$2
shift 2
rm -rf "$place"
mkdir -p "$place/one" "$place/another/place"
for target; do
  (cd "$place" && "$generator" --target "$target" --out "one/$target" --batches "one/$target/many")
  (cd "$place/another/place" && "$generator" --target "$target" \
    --out "$place/another/place/two/$target" --batches "$place/another/place/two/$target/many")
  [ "$(ls "$place/one/$target" | wc -l)" -gt 10 ] # something was written
done
diff -r "$place/one" "$place/another/place/two"
