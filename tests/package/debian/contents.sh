#!/usr/bin/env bash
# usage: contents.sh PACKAGES SOURCE PLACE
# Unpacks the Debian packages of the folder PACKAGES below PLACE and checks what is in them.
set -euo pipefail
packages=$(realpath "$1") source=$2 place=$3
rm -rf "$place"
mkdir -p "$place"
cd "$place"
libraries=usr/lib/x86_64-linux-gnu

for file in "$packages"/*.deb; do
  name=$(basename "$file")
  dpkg-deb --extract "$file" "${name%%_*}"
done

fail() { echo "$*" >&2 && exit 1; }

# expect PACKAGE FILE...: the package has these files and no others, but those that every package has.
expect() {
  local package=$1 found
  shift
  found=$(cd "$package" && find . ! -type d ! -path './usr/share/doc/*/changelog.gz' ! -path './usr/share/doc/*/copyright' ! -path './usr/share/lintian/*' \
    -printf '%P\n' | sort)
  diff <(printf '%s\n' "$@" | sort) - <<<"$found" || fail "$package: this is expected (<) and that is in it (>)"
}

forms() { # LIBRARY: its file for each target
  printf "$libraries/%s$1.so.6.1\n" '' glibc-hwcaps/x86-64-v{3,4}/
}

mapfile -t xfm < <(forms libxfm)
mapfile -t xfmmany < <(forms libxfmmany)
expect libxfm6.1 "${xfm[@]}"
expect libxfmmany6.1 "${xfmmany[@]}"
expect libxfmcore6.1 $libraries/libxfmcore.so.6.1
expect libxfm-fftw3-compat $libraries/libxfm-fftw3{,f}.so.3{,.6.1}
mapfile -t headers < <(cd "$source" && find include core/include -type f -printf '%P\n')
expect libxfm-dev "${headers[@]/#/usr/include/}" $libraries/libxfm{,many}{,_v3,_v4}.a $libraries/libxfmcore.a \
  $libraries/libxfm{,many,core}.so $libraries/pkgconfig/xfm{,many,core}.pc \
  $libraries/cmake/xfm/xfm-config{,-release,-version}.cmake
module=usr/lib/python3/dist-packages/xfm
expect python3-xfm $module/_xfm.cpython-311-x86_64-linux-gnu.so \
  $(cd "$source/python" && find xfm -type f \( -name '*.py*' -o -name py.typed \) ! -name '*.pyc' -printf "$module/%P\n")
expect xfm-tools usr/{bin/xfmbench,bin/xfmgen,share/man/man1/xfmbench.1.gz,share/man/man1/xfmgen.1.gz}

# The loader needs no path to find them, and none of another machine is left.
while read -r file; do
  ! readelf --dynamic "$file" | grep -E 'RPATH|RUNPATH' || fail "$file: has a path for the loader"
done < <(find . -name '*.so.6.1' -o -name '*.so.3.6.1' -o -name 'xfmbench' -o -name '_xfm*.so')

# check_symbols PACKAGE LIBRARY...: each symbol that these libraries export is in the package's symbols file, and its
# minimal version is that of the interface.
check_symbols() {
  local package=$1 expected found
  shift
  expected=$(cd "$package/$libraries" && nm --dynamic --defined-only "$@" | awk 'NF == 3 { print $3 "@Base 6.1" }' | sort)
  found=$(dpkg-deb --info "$packages/${package}_"*.deb symbols | sed -n 's/^ //p' | sort)
  [ "$found" = "$expected" ] || fail "$package: its symbols file has not what it exports"
}
for library in xfm xfmmany xfmcore; do
  check_symbols lib${library}6.1 lib$library.so.6.1
done
check_symbols libxfm-fftw3-compat libxfm-fftw3.so.3 libxfm-fftw3f.so.3

# FFTW and xfm have to be there behind FFTW's interface, which loads them by name, and nothing goes for it.
field() { dpkg-deb --field "$packages"/libxfm-fftw3-compat_*.deb "$@"; }
for library in libfftw3-double3 libfftw3-single3 libxfm6.1 libxfmmany6.1; do
  [[ $(field Depends) == *$library* ]] || fail "libxfm-fftw3-compat: does not depend on $library"
done
[ -z "$(field Breaks Conflicts Provides Replaces)" ] || fail "libxfm-fftw3-compat: stands in the way of other packages"

# What was written of the headers and pages.
for file in html/index.html docs/README.md README.md CHANGELOG.md; do
  [ -s libxfm-doc/usr/share/doc/libxfm-doc/$file ] || fail "libxfm-doc: no $file"
done
[ -s libxfm-doc/usr/share/man/man3/xfm.3.gz ] || fail "libxfm-doc: no xfm(3)"

# Links from page to page lead to installed files.
cd libxfm-doc/usr/share/doc/libxfm-doc
status=0
while IFS=: read -r page link; do
  link=${link#](}
  link=${link%%[#)]*}
  [ -z "$link" ] || [ -e "$(dirname "$page")/$link" ] || { echo "$page: $link is not installed" >&2 && status=1; }
done < <(grep -rnoE --include='*.md' '\]\([^):]+\)' . | sed -E 's/:[0-9]+:/:/')
exit $status
