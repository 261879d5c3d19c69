#!/bin/sh
# usage: check_plot.sh XFMBENCH
# Draws two families and looks at the pictures: both forms, a curve for each type, and the line at 1.
set -eu
bench=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
fail() { echo "FAILED: $*" && exit 1; }

"$bench" --target x86-64 --rounds 3 --only WHT_2_ --only WHT_3_ --only DCT4_8_ --plot "$folder/it's here"
cd "$folder/it's here"
for family in WHT DCT4; do
  [ "$(od -An -tx1 -N8 "x86-64.$family.png" | tr -d ' ')" = 89504e470d0a1a0a ] || fail "$family: no PNG"
  grep -q '</svg>' "x86-64.$family.svg" || fail "$family: no SVG"
  for type in 32f 64f; do grep -q ">$type<" "x86-64.$family.svg" || fail "$family: no $type"; done
  grep -q '^set arrow from graph 0, first 1 ' "x86-64.$family.gp" || fail "$family: no line at 1"
done
[ "$(grep -Ec '^[23] [0-9.]+$' x86-64.WHT.gp)" = 4 ] || fail "not a ratio for each kernel"
rm x86-64.WHT.svg
gnuplot x86-64.WHT.gp
[ -s x86-64.WHT.svg ] || fail "cannot be drawn again"
