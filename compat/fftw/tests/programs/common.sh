# Sourced: XFM_FFTW_PRELOAD has the libraries under test; `ours command...` runs a program with them in front of FFTW
# and checks that something ran on xfm.
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -r "$folder"' EXIT

ours() {
  LD_PRELOAD=$XFM_FFTW_PRELOAD XFM_FFTW_VERBOSE=1 "$@" 2>"$folder/report" || { cat "$folder/report" >&2 && return 1; }
  grep '^xfm-fftw3' "$folder/report" >&2
  grep -qE '^xfm-fftw3f?: executions +xfm +[1-9]' "$folder/report" || { echo "nothing ran on xfm" >&2 && return 1; }
}
