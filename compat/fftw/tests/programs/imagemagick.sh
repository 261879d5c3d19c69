# ImageMagick transforms a picture and back: the same spectra in 16 bits, the same picture.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
convert=convert-im6.q16
cd "$folder"
$convert -seed 5 -size 60x48 plasma:red-blue -depth 16 picture.miff

$convert picture.miff -fft +adjoin theirs-%d.miff
ours $convert picture.miff -fft +adjoin ours-%d.miff
for part in 0 1; do
  # A last digit may be rounded the other way.
  compare-im6.q16 -metric PAE theirs-$part.miff ours-$part.miff null: 2>&1 | awk '{print; exit $1 > 1}'
done

$convert theirs-0.miff theirs-1.miff -ift -depth 8 theirs.ppm
ours $convert theirs-0.miff theirs-1.miff -ift -depth 8 ours.ppm
cmp theirs.ppm ours.ppm
