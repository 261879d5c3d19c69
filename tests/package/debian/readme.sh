#!/usr/bin/env bash
# usage: readme.sh SOURCE UNPACKED
# The tests of the packages for an installed system, with the packages as contents.sh has unpacked them.
set -euo pipefail
source=$1 unpacked=$(realpath "$2")
libraries=usr/lib/x86_64-linux-gnu

# As they are when installed: in one tree.
rm -rf "$unpacked/all"
mkdir "$unpacked/all"
for package in "$unpacked"/*/; do
  [ "$package" = "$unpacked/all/" ] || cp -a --link "$package/." "$unpacked/all"
done
export PKG_CONFIG_PATH=$unpacked/all/$libraries/pkgconfig
export LD_LIBRARY_PATH=$unpacked/all/$libraries
export PYTHONPATH=$unpacked/all/usr/lib/python3/dist-packages
"$source/packaging/debian/tests/readme" "$source/README.md"
"$source/packaging/debian/tests/fftw"

gcc "$source/tests/targets/mapped.c" -o "$unpacked/mapped" $(pkg-config --cflags --libs xfm) -ldl
bash "$source/tests/targets/choice.sh" "$unpacked/mapped" "$LD_LIBRARY_PATH" x86-64 x86-64-v3 x86-64-v4
"$unpacked/all/usr/bin/xfmbench" --rounds 3 --only CToC_8_32fc
