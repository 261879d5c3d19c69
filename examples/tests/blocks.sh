#!/usr/bin/env bash
# blocks.sh CASE BLOCKS: one case of the example, in a folder of its own.
set -euo pipefail

case=$1 blocks=$2
cd "$(mktemp -d)"
trap 'rm -rf "$PWD"' EXIT

fail() { echo "FAILED: $*"; exit 1; }

case $case in
  same)
    "$blocks" --points 0 >report
    cmp before.png after.png || fail 'the picture was changed'
    grep -Eq '^change   0\.0000 of full scale$' report || fail "$(cat report)"
    "$blocks" before.png --before again.png --after smooth.png >report
    cmp before.png again.png || fail 'the picture was not read as it was written'
    grep -Eq '^change   0\.[12][0-9]+ of full scale$' report || fail "$(cat report)"
    ;;
  threads)
    for threads in 1 2 5; do "$blocks" --threads $threads --after $threads.png >report; done
    cmp 1.png 2.png && cmp 1.png 5.png || fail 'the pictures differ'
    ! cmp -s before.png 1.png || fail 'the picture was not smoothed'
    ;;
  missing)
    status=0
    "$blocks" nothing.png 2>errors || status=$?
    [ "$status" = 1 ] && grep -Eq '^blocks: .+' errors || fail "status $status, $(cat errors)"
    ;;
  *) fail "no such case" ;;
esac
