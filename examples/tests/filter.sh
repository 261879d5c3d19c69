#!/usr/bin/env bash
# filter.sh CASE FILTER SPECTROGRAM TONES: one case of the example, in a folder of its own.
set -euo pipefail

case=$1 filter=$2 spectrogram=$3 tones=$4
cd "$(mktemp -d)"
trap 'rm -rf "$PWD"' EXIT

fail() { echo "FAILED: $*"; exit 1; }

# filters ARGUMENT... : the run succeeds, and reports an error as small as binary32 allows.
filters() {
  "$filter" "$@" -o out.wav >report 2>errors || fail "status $?: $(cat errors)"
  cat report
  [ ! -s errors ] || fail "something on stderr: $(cat errors)"
  says '^error    (0\.0e\+00|[0-9.]+e-(0[789]|1[0-9])) at most, (0\.0e\+00|[0-9.]+e-(0[89]|1[0-9])) r\.m\.s\.'
}

says() { grep -Eq "$1" report || fail "the report lacks: $1"; }

# hears PATTERN... : the report of the spectrogram of the result.
hears() {
  "$spectrogram" out.wav -o out.png --length 16 >report 2>errors || fail "status $?: $(cat errors)"
  cat report
  for pattern; do says "$pattern"; done
}

# refuses MESSAGE ARGUMENT... : status 1, and one line on stderr that ends with the message.
refuses() {
  local message=$1 status=0
  shift
  "$filter" "$@" >report 2>errors || status=$?
  cat errors
  [ "$status" = 1 ] || fail "status $status"
  [ "$(wc -l <errors)" = 1 ] || fail "not one line"
  grep -Eq "^filter: .*$message\$" errors || fail "the message lacks: $message"
}

case $case in
  wav | flac | ogg) # The tone of the left channel passes unchanged, that of the right one is gone.
    "$tones" "tones.$case" 2
    filters "tones.$case" --to 3500
    says '2 channels, 16000 Hz, 1.00 s'
    hears '2 channels, 16000 Hz, 1.00 s' '^loudest  1500 to 2500 Hz, -6.[01] dB, left$' \
      '^loudest .* -([6-9][0-9]|1[0-9][0-9])\.. dB, right$'
    ;;
  high) # The other way round.
    "$tones" tones.wav 2
    filters tones.wav --from 3500 --to 9000
    hears '^loudest .* -([6-9][0-9]|1[0-9][0-9])\.. dB, left$' '^loudest  4500 to 5500 Hz, -6.[01] dB, right$'
    ;;
  through) # One tap and the whole band let everything through.
    "$tones" tones.wav 1
    filters tones.wav --to 8000 --taps 1
    hears '^loudest  1500 to 2500 Hz, -6.[01] dB$'
    ;;
  lengths) # Even and odd lengths, blocks of one sample, and a filter that fills the transform.
    "$tones" tones.wav 1
    for length in 2 3 8 13 33 47 64; do
      filters tones.wav --to 3500 --length "$length" --taps 1
      filters tones.wav --to 3500 --length "$length" --taps $(((length - 1) / 2 * 2 + 1))
    done
    ;;
  missing) refuses 'nothing.wav: No such file or directory' nothing.wav ;;
  damaged) # The header promises a second of sound, but the rest is missing.
    "$tones" whole.flac 2
    head -c 6000 whole.flac >half.flac
    refuses 'half.flac: damaged: .+' half.flac
    ;;
  unwritable)
    "$tones" tones.wav 1
    refuses 'tones.wav/out.wav: Not a directory' tones.wav -o tones.wav/out.wav
    ;;
  itself)
    "$tones" tones.wav 1
    refuses 'tones.wav: is the input file' tones.wav -o ./tones.wav
    ;;
  unserved)
    "$tones" tones.wav 1
    refuses 'length 65 is not supported' tones.wav --length 65
    refuses '65 taps: must be an odd number, 64 at most' tones.wav --taps 65
    refuses '4 taps: must be an odd number, 64 at most' tones.wav --taps 4
    refuses '3000 to 2000 Hz is not a band' tones.wav --from 3000 --to 2000
    ;;
  *) fail "no such case" ;;
esac
