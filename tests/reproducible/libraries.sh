#!/usr/bin/env bash
# usage: libraries.sh SOURCE BUILD CC CXX FAKETIME
# Builds the libraries of BUILD again, elsewhere, from a copy of SOURCE. The same bytes must come out: all generated
# sources, the objects of all sources written by hand and of a sample of the generated ones, for every target, and all
# libraries. The objects that are not in the sample are taken from BUILD; XFM_REPRODUCIBLE=all compiles them too, in ten
# minutes more.
set -euo pipefail
source=$1 build=$2 cc=$3 cxx=$4 faketime=$5
sample='[^/]*_(3|16|29|60)'
[ "${XFM_REPRODUCIBLE-}" != all ] || sample='.*'

. "$(dirname "$0")/elsewhere.sh"
copy=$place/a/longer/way/copy there=$place/out
mkdir "$there"
copy_of_source "$source" "$copy"

# Root can be another user, others take another name.
if [ "$(id -u)" = 0 ]; then
  as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
  chown -R 65534:65534 "$place"
fi
cached() { sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"; }
settings=()
for name in CMAKE_BUILD_TYPE CMAKE_CXX_FLAGS CMAKE_C_FLAGS XFM_TARGETS; do settings+=(-D "$name=$(cached $name)"); done
elsewhere cmake -S "$copy" -B "$there" -G Ninja -D CMAKE_C_COMPILER="$cc" -D CMAKE_CXX_COMPILER="$cxx" "${settings[@]}" \
  -D XFM_TESTS=OFF -D XFM_BENCH=OFF -D XFM_EXAMPLES=OFF >"$place/log" || { cat "$place/log" && exit 1; }

# Objects of the libraries: those whose number is not in the sample are not compiled.
objects=$(ninja -C "$there" -t targets all | sed -n 's/: CXX_COMPILER.*//p' |
  grep -E '/(xfm(many)?_objects[^/]*|xfm_common_objects|xfmcore(_static)?)\.dir/.*\.o$')
numbered=$(grep -E '/(kernels|batch)_[0-9]+\.cpp\.o$' <<<"$objects")
compiled=$(grep -vxFf <(grep -vE "/$sample\.cpp\.o$" <<<"$numbered") <<<"$objects")
elsewhere ninja -C "$there" -j2 $compiled >"$place/log" || { cat "$place/log" && exit 1; }
for object in $objects; do
  [ -e "$there/$object" ] || install -D "$build/$object" "$there/$object"
done

libraries=$(ninja -C "$there" -t targets all | sed -nE 's/: CXX_(SHARED|STATIC)_LIBRARY_LINKER.*//p' |
  grep -E '/libxfm(core|many)?(_v[0-9])?\.(a|so\.[0-9.]+)$')
[ "${#as_user[@]}" = 0 ] || chown -R 65534:65534 "$there"
for library in $libraries; do
  command=$(ninja -C "$there" -t commands -s "$library")
  elsewhere sh -c "cd '$there' && $command" >"$place/log" || { cat "$place/log" && exit 1; }
done

differ=0
same() { # files, what they are
  local file count=0
  for file in $1; do
    count=$((count + 1))
    cmp "$build/$file" "$there/$file" || differ=1
  done
  echo "$2: $count"
  [ "$count" -gt 3 ] || differ=1
}
same "$(cd "$there" && find generated -type f -name '*.*' | sort)" "generated files"
same "$compiled" "objects compiled again"
same "$libraries" "libraries linked again"
exit "$differ"
