#!/usr/bin/env bash
# code_channels.sh PROGRAM TEXT ORDER: sends the text over 2^ORDER codes, without and with noise.
set -euo pipefail

program=$1 text=$2 order=$3

fail() { echo "FAILED: $*"; exit 1; }

report=$("$program" "$text" --order "$order" --noise 0)
echo "$report"
grep -Eq "^codes +$((2 ** order)), " <<<"$report" || fail "not 2^$order codes"
grep -Eq '^round trip +greatest error [0-9.]+e-0[78] without noise' <<<"$report" || fail "no small error"
grep -Eq '^bit errors +0 of [0-9]+, 0 expected$' <<<"$report" || fail "errors without noise"
grep -q '^received .*#!/usr/bin/env bash$' <<<"$report" || fail "not the text"

report=$("$program" "$text" --order "$order" --noise 0.6)
echo "$report"
read -r errors expected < <(sed -n 's/^bit errors *\([0-9]*\) of [0-9]*, \([0-9]*\) expected$/\1 \2/p' <<<"$report")
[ "$expected" -gt 100 ] || fail "the text is too short to judge"
difference=$((errors > expected ? errors - expected : expected - errors))
[ $((10 * difference)) -lt "$expected" ] || fail "$errors errors, $expected expected"
