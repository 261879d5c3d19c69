#!/usr/bin/env bash
# mdct.sh CASE MDCT TONES SNR: one case of the example, in a folder of its own.
set -euo pipefail

case=$1 mdct=$2 tones=$3 snr=$4
cd "$(mktemp -d)"
trap 'rm -rf "$PWD"' EXIT

fail() { echo "FAILED: $*"; exit 1; }

# travels SOUND ARGUMENT... : the run succeeds, writes a copy as long as the sound, and reports its true ratio, which is
# left in $ratio.
travels() {
  "$mdct" "$@" -o out/copy.wav >report 2>errors || fail "status $?: $(cat errors)"
  cat report
  [ ! -s errors ] || fail "something on stderr: $(cat errors)"
  ratio=$(sed -n 's/^SNR      \([0-9.]*\) dB$/\1/p' report)
  [ "$ratio" = "$("$snr" "$1" out/copy.wav)" ] || fail "the copy is at $("$snr" "$1" out/copy.wav) dB"
}

says() { grep -Eq "$1" report || fail "the report lacks: $1"; }
holds() { awk "BEGIN { exit !($1) }" || fail "not so: $1"; }

# refuses MESSAGE ARGUMENT... : status 1, and one line on stderr that ends with the message.
refuses() {
  local message=$1 status=0
  shift
  "$mdct" "$@" >report 2>errors || status=$?
  cat errors
  [ "$status" = 1 ] || fail "status $status"
  [ "$(wc -l <errors)" = 1 ] || fail "not one line"
  grep -Eq "^mdct: .*$message\$" errors || fail "the message lacks: $message"
}

[ "$case" = missing ] || "$tones" tones.wav 2

case $case in
  exact) # Without rounding only the error of the arithmetic remains.
    travels tones.wav
    says '2 channels, 16000 Hz, 1.00 s'
    says '^step     none$'
    holds "$ratio > 120"
    ;;
  lengths) # Blocks that end with the sound, blocks that do not, and one that is longer.
    for length in 4 8 32 64 128 2048 4096 65536; do
      travels tones.wav --length "$length"
      holds "$ratio > 120"
    done
    ;;
  rounded) # Rounding makes at most as much noise as when all remainders are equally likely.
    signal=-9.03 last=0
    for step in 0.3 0.03 0.003 0.0003 0.0001; do
      travels tones.wav --length 256 --step "$step"
      says "^step     $step: [0-9.]+ bits per sample"
      holds "$ratio > $signal + 10 * log(12 / ($step * $step)) / log(10) - 0.5"
      holds "$ratio > $last + 5"
      last=$ratio
    done
    ;;
  mono)
    "$tones" mono.wav 1
    travels mono.wav
    says '1 channel, 16000 Hz'
    holds "$ratio > 120"
    ;;
  flac)
    "$tones" tones.flac 2
    travels tones.flac
    holds "$ratio > 120"
    ;;
  short) # Shorter than a block.
    head -c 60 tones.wav >short.wav
    travels short.wav
    holds "$ratio > 110"
    ;;
  missing) refuses 'nothing.wav: No such file or directory' nothing.wav ;;
  broken)
    yes 'not a sound' | head -c 10000 >text.wav || true
    refuses 'text.wav: .+' text.wav
    ;;
  unwritable) refuses 'tones.wav/copy.wav: Not a directory' tones.wav -o tones.wav/copy.wav ;;
  unserved)
    for length in 0 2 3 65 1000 131072; do
      refuses "length $length is not a power of two from 4 to 65536" tones.wav --length "$length"
    done
    ;;
  itself)
    refuses 'tones.wav: is the input file' tones.wav -o ./tones.wav
    travels tones.wav
    ;;
  *) fail "no such case" ;;
esac
