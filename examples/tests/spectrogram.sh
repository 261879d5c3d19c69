#!/usr/bin/env bash
# spectrogram.sh CASE SPECTROGRAM TONES: one case of the example, in a folder of its own.
set -euo pipefail

case=$1 spectrogram=$2 tones=$3 path=$PATH
cd "$(mktemp -d)"
trap 'rm -rf "$PWD"' EXIT

fail() { echo "FAILED: $*"; exit 1; }

# draws ARGUMENT... : the run succeeds and writes a PNG of the right width.
draws() {
  "$spectrogram" "$@" -o out/picture.png >report 2>errors || fail "status $?: $(cat errors)"
  cat report
  [ ! -s errors ] || fail "something on stderr: $(cat errors)"
  [ "$(od -An -tx1 -N8 out/picture.png | tr -d ' ')" = 89504e470d0a1a0a ] || fail "no PNG"
  [ "$(od -An -tu4 --endian=big -j16 -N4 out/picture.png | tr -d ' ')" -ge 1400 ] || fail "narrow picture"
}

says() { grep -Eq "$1" report || fail "the report lacks: $1"; }

# refuses MESSAGE ARGUMENT... : status 1, and one line on stderr that ends with the message.
refuses() {
  local message=$1 status=0
  shift
  PATH=$path "$spectrogram" "$@" >report 2>errors || status=$?
  cat errors
  [ "$status" = 1 ] || fail "status $status"
  [ "$(wc -l <errors)" = 1 ] || fail "not one line"
  grep -Eq "^spectrogram: .*$message\$" errors || fail "the message lacks: $message"
}

case $case in
  wav | flac | ogg) # The two channels are separate: each has its own tone at half of full scale.
    "$tones" "tones.$case" 2
    draws "tones.$case" --length 16
    says '2 channels, 16000 Hz, 1.00 s'
    says '^loudest  1500 to 2500 Hz, -6.[01] dB, left$'
    says '^loudest  4500 to 5500 Hz, -6.[01] dB, right$'
    says '^frames   3997 of 16 samples, one every 4$'
    says '^batches  7994 transforms by xfmManyDFTFwd_RToCCS_32f, [0-9.]+ ns each, [0-9.]+ ms in all$'
    says '^gain     [0-9.]+ times as fast as single calls$'
    ;;
  mono)
    "$tones" tones.wav 1
    draws tones.wav --length 16
    says '^loudest  1500 to 2500 Hz, -6.[01] dB$'
    ;;
  lengths) # The longest length, and odd and tiny ones.
    "$tones" tones.wav 2
    for length in '' 2 3 5 9; do draws tones.wav ${length:+--length $length}; done
    ;;
  missing) refuses 'nothing.wav: No such file or directory' nothing.wav ;;
  broken)
    yes 'not a sound' | head -c 10000 >text.wav || true
    refuses 'text.wav: .+' text.wav
    ;;
  damaged) # The header promises a second of sound, but the rest is missing.
    "$tones" whole.flac 2
    head -c 6000 whole.flac >half.flac
    refuses 'half.flac: damaged: .+' half.flac
    ;;
  short)
    "$tones" whole.wav 1
    head -c 60 whole.wav >short.wav
    refuses 'short.wav: shorter than one window of 16 samples' short.wav --length 16
    ;;
  unwritable)
    "$tones" tones.wav 1
    refuses 'tones.wav/picture.png: Not a directory' tones.wav -o tones.wav/picture.png
    ;;
  unserved)
    "$tones" tones.wav 1
    refuses 'length 65 is not supported, the longest is [0-9]+' tones.wav --length 65
    ;;
  gnuplot)
    "$tones" tones.wav 1
    path=/nowhere
    refuses 'gnuplot is not installed' tones.wav
    ;;
  *) fail "no such case" ;;
esac
