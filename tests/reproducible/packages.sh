#!/usr/bin/env bash
# usage: packages.sh SOURCE BUILD PACKAGES FAKETIME
# Makes the Debian packages of BUILD, which are in PACKAGES, again, elsewhere, from a copy of SOURCE: the same bytes must
# come out. What is in them is compiled by BUILD, whose libraries are made again by another test.
set -euo pipefail
source=$1 build=$2 packages=$3 faketime=$4
. "$(dirname "$0")/elsewhere.sh"

copy_of_source "$source" "$place/a/longer/way/copy"
elsewhere "$place/a/longer/way/copy/scripts/package" --built "$build" "$place/out" >"$place/log" 2>&1 ||
  { cat "$place/log" && exit 1; }

differ=0 count=0
for package in "$packages"/*.deb; do
  count=$((count + 1))
  cmp "$package" "$place/out/${package##*/}" || differ=1
done
echo "packages made again: $count"
[ "$count" -gt 3 ] || differ=1
exit "$differ"
