#!/bin/sh
# names.sh OURS PREFIX THEIRS...: every name of FFTW's interface that its libraries export is in ours: those of the
# header, and those for Fortran (PREFIX is fftw or fftwf).
set -eu
export LC_ALL=C
ours=$1 prefix=$2
shift 2
fortran=dfftw
[ "$prefix" = fftw ] || fortran=sfftw
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

exported() { nm -D --defined-only "$@" | awk 'NF == 3 {print $3}' | sort -u; }
echo '#include <fftw3.h>' | cpp -P | grep -oE "\b${prefix}_[a-z0-9_]+(\(|\[)" | tr -d '([' | sort -u >"$folder/header"
exported "$@" >"$folder/theirs"
exported "$ours" >"$folder/ours"
{ comm -12 "$folder/header" "$folder/theirs" && grep "^${fortran}_" "$folder/theirs"; } | sort >"$folder/interface"
comm -23 "$folder/interface" "$folder/ours" | sed 's/^/missing: /'
comm -13 "$folder/interface" "$folder/ours" | sed 's/^/not of FFTW: /'
[ "$(wc -l <"$folder/interface")" -gt 150 ] && cmp "$folder/interface" "$folder/ours"
