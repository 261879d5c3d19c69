#!/usr/bin/env bash
# usage: choice.sh QEMU CPU PROGRAM LIBRARY
# PROGRAM prints the libxfm that the loader has chosen on the emulated CPU, which must be LIBRARY.
set -euo pipefail
found=$("$1" -cpu "$2" "$3")
echo "$2: $found"
[ "$(realpath "$found")" = "$(realpath "$4")" ] || { echo "expected $4" >&2 && exit 1; }
