# minimodem decodes what it sent, at the rate of telephones, where its transforms are short, and at that of sound cards.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
seq 1 400 >"$folder/sent"

receive() { minimodem --rx --quiet -f "$folder/sound.wav" 1200; }

for rate in 48000 8000; do
  minimodem --tx --tx-carrier -R $rate -f "$folder/sound.wav" 1200 <"$folder/sent"
  receive >"$folder/theirs"
  LD_PRELOAD=$XFM_FFTW_PRELOAD receive >"$folder/ours"
  cmp "$folder/theirs" "$folder/ours"
  cmp "$folder/sent" "$folder/ours"
done
ours receive >"$folder/ours_and_report"
