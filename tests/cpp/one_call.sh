#!/bin/sh
# one_call.sh SOURCE COMPILER...: in the machine code each function has exactly one call or jump, straight to the C
# function of its name.
set -eu
source=$1
shift
object=$(mktemp)
trap 'rm -f "$object"' EXIT
"$@" -c "$source" -o "$object"
objdump -d -r --no-show-raw-insn "$object" | awk '
  function finish() {
    if (name != "" && (calls != 1 || target != name)) {
      printf "%s: %d calls or jumps, the last to %s\n", name, calls, target
      wrong = 1
    }
  }
  /^[0-9a-f]+ <(one|two)_/ { finish(); name = $2; gsub(/^<(one|two)_|>:$/, "", name); calls = 0; target = ""; ++functions; next }
  /^[0-9a-f]+ </ { finish(); name = ""; next }
  $2 ~ /^(call|j)/ { ++calls }
  $2 ~ /^R_X86_64_/ { target = $3; sub(/-0x[0-9a-f]+$/, "", target) }
  END {
    finish()
    print functions " functions"
    exit wrong || functions < 50
  }'
