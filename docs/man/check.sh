#!/bin/sh
# usage: check.sh FOLDER: the manual pages are clean troff, lead to each other, and have all functions of the families.
set -eu
cd "$1"
fail() { echo "FAILED: $*" && exit 1; }

command -v groff >/dev/null || fail "no groff"
for page in *.3; do
  target=$(sed -n 's|^\.so man3/||p' "$page")
  if [ -n "$target" ]; then
    [ -s "$target" ] || fail "$page leads to $target, which is none"
    grep -q "${page%.3}" "$target" || fail "$target does not mention ${page%.3}"
  else
    warnings=$(groff -man -Tutf8 -ww -z "$page" 2>&1) || true
    [ -z "$warnings" ] || fail "$warnings"
    for section in NAME SYNOPSIS DESCRIPTION; do grep -q "^\.SH $section$" "$page" || fail "$page has no $section"; done
  fi
done
# One page for each family, and every kernel on one of them.
[ "$(cat ./*.3 | grep -oE '\bxfm(DFT(Fwd|Inv)_[A-Za-z]+|Hartley|WHT)_[0-9]+_(32|64)fc?\b' | sort -u | wc -l)" = 1160 ] ||
  fail "not all kernels"
