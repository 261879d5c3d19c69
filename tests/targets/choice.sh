#!/usr/bin/env bash
# usage: choice.sh PROGRAM FOLDER TARGET...
# PROGRAM prints the libxfm that the loader has chosen. It must be the best of the TARGETs, below FOLDER, that the
# processor can run, and a lesser one where the loader is made to overlook what the processor has.
set -euo pipefail
program=$1 folder=$(realpath "$2")
shift 2

has() {
  local flag
  for flag; do grep -qm1 -w "$flag" /proc/cpuinfo || return 1; done
}
processor=1
has ssse3 sse4_1 sse4_2 popcnt && processor=2
has avx avx2 bmi1 bmi2 f16c fma movbe && processor=3
has avx512f avx512bw avx512cd avx512dq avx512vl && processor=4

# The best of the targets up to a level, "x86-64-v3" up to level 3.
best() {
  local level target
  for ((level = $1; level > 1; --level)); do
    for target in "${targets[@]}"; do [ "$target" != "x86-64-v$level" ] || { echo "$target" && return; }; done
  done
  echo x86-64
}
targets=("$@")

check() { # the level that is left, what the loader overlooks
  local level=$(($1 < processor ? $1 : processor)) file
  local target=$(best "$level") found
  [ "$target" = x86-64 ] && file=$folder || file=$folder/glibc-hwcaps/$target
  found=$(GLIBC_TUNABLES=glibc.cpu.hwcaps=$2 "$program")
  echo "${2:-everything}: $found"
  [ "$(dirname "$(realpath "$found")")" = "$file" ] || { echo "expected a library in $file" >&2 && exit 1; }
}
check 4 ''
check 3 -AVX512F
check 2 -AVX2
check 1 -SSE4_2
