#!/usr/bin/env bash
# usage: instructions.sh QEMU CPU PROGRAM HAS LACKS
# PROGRAM executes an instruction of a feature. It must end well for each feature of the list HAS on the emulated CPU, and
# as an illegal instruction for each of the list LACKS.
set -u
qemu=$1 cpu=$2 program=$3 failed=0

check() { # the status expected, the features
  local expected=$1 feature status
  shift
  for feature; do
    { "$qemu" -cpu "$cpu" "$program" "$feature" >/dev/null; } 2>/dev/null
    status=$?
    echo "$feature: status $status"
    [ "$status" = "$expected" ] || { echo "expected $expected" >&2 && failed=1; }
  done
}
check 0 $4
check $((128 + 4)) $5 # SIGILL
exit "$failed"
