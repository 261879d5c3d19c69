#!/usr/bin/env bash
# usage: traces.sh PREFIX FOLDER...
# No file below PREFIX may contain one of the FOLDERs, the name of this machine's user's home, or the date of its making
# as compilers write it.
set -euo pipefail
prefix=$1
shift
libraries=$(find "$prefix" -name '*.so.*' -type f | wc -l)
[ "$libraries" -ge 3 ] || { echo "no libraries in $prefix" >&2 && exit 1; }

patterns=()
for folder; do patterns+=(-e "$folder/"); done
[ -z "${HOME-}" ] || [ "$HOME" = / ] || patterns+=(-e "$HOME/")
for file in $(find "$prefix" -name '*.so.*' -type f); do patterns+=(-e "$(LC_ALL=C date -r "$file" '+%b %e %Y')"); done
if grep -rlaF "${patterns[@]}" "$prefix"; then
  echo "these files name a folder of the build, or the day" >&2
  exit 1
fi
echo "$(find "$prefix" -type f | wc -l) files, $libraries shared libraries: no trace of ${*}"
