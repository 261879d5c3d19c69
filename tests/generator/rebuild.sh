#!/usr/bin/env bash
# usage: rebuild.sh SOURCE FOLDER CMAKE_OPTION...
# In a copy of the source tree: a second build compiles nothing, and a changed row of the complex table recompiles the
# kernels of its length, one file, and no other kernel.
set -euo pipefail
source=$1 place=$2
shift 2
log=$place/log

fail() {
  echo "rebuild: $1" >&2
  exit 1
}
build() { cmake --build "$place/build" --target xfm -j2 >"$log" 2>&1 || { cat "$log" >&2 && fail "does not build"; }; }
compiled() { sed -n 's|.*Building CXX object .*/\([A-Za-z_0-9]*\.cpp\)\.o$|\1|p' "$log" | sort; }

rm -rf "$place"
mkdir -p "$place/source"
for entry in "$source"/*; do
  case $place/ in "$entry"/*) continue ;; esac # not this build itself
  [ "${entry##*/}" = build ] || cp -R "$entry" "$place/source"
done
cmake -S "$place/source" -B "$place/build" -D CMAKE_BUILD_TYPE=Release \
  -D XFM_TARGETS=x86-64 -D XFM_TESTS=OFF -D XFM_BENCH=OFF -D XFM_EXAMPLES=OFF "$@" >/dev/null

build
[ "$(compiled | grep -c '^kernels_')" -gt 10 ] || fail "the first build compiles no kernels"
build
[ -z "$(compiled)" ] || fail "a build without a change compiles: $(compiled)"

# 4 by 5 or 5 by 4: the same length at the same cost, and no other kernel has a part of this length.
table=$place/source/src/dft/recipe/table.cpp
sed -i '/^ *{20, *{"PFA(4,5)"/s/PFA(4,5)/PFA(5,4)/' "$table"
! cmp -s "$table" "$source/src/dft/recipe/table.cpp" || fail "the row of length 20 was not found"
build
kernels=$(compiled | grep -v '^table.cpp$' || true)
[ "$kernels" = kernels_20.cpp ] || fail "a changed row of length 20 recompiles: $kernels"
