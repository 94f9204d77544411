#!/usr/bin/env bash
# others_tests.sh PROGRAM: reads images that other programs write with --standard, and compares the pixels with those
# that ImageMagick reads. Skips programs that are not installed.
set -euo pipefail
tool=$1
convert -version 2>/dev/null | grep -q ImageMagick || exit 77
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

mkdir images colors results
count=0
# check FILE: keeps an image of at most 256 colors, to be checked with the others.
check() {
  count=$((count + 1))
  mv "$1" "images/$count-$1"
}

convert -seed 7 -size 61x40 plasma:red-blue -colors 200 -depth 8 200.png
convert 200.png -colors 16 16.png
convert 200.png -monochrome 2.png
for colors in 2 16 200; do
  for program in convert 'gm convert'; do
    command -v ${program%% *} >/dev/null || continue
    for kind in bmp bmp2 bmp3 gif pcx; do
      # ImageMagick misreads the uncompressed black and white PCX files of GraphicsMagick.
      [ "$program $kind $colors" != 'gm convert pcx 2' ] || continue
      $program $colors.png "$kind:plain-$colors.${kind%[23]}"
      check "plain-$colors.${kind%[23]}"
    done
    for compression in RLE None; do
      $program $colors.png -compress $compression "bmp:$compression.bmp"
      check "$compression.bmp"
    done
    $program $colors.png -type TrueColor bmp:direct.bmp
    check direct.bmp
  done
  for kind in RGB555 RGB565 ARGB1555; do
    convert $colors.png -define bmp:subtype=$kind bmp:$kind.bmp
    check $kind.bmp
  done
  if command -v ffmpeg >/dev/null; then
    for pixels in bgr24 bgra; do
      ffmpeg -loglevel error -y -i $colors.png -pix_fmt $pixels $pixels.bmp
      check $pixels.bmp
    done
  fi
  if command -v ppmtobmp >/dev/null; then
    pngtopnm $colors.png | ppmtobmp -os2 2>/dev/null >os2.bmp
    check os2.bmp
    pngtopnm $colors.png | ppmtopcx 2>/dev/null >netpbm.pcx
    [ $colors = 2 ] || check netpbm.pcx
  fi
done
"$tool" convert --standard --quiet --colors exact --format gimp --out-dir colors images/*
for image in images/*; do
  name=$(basename "$image")
  "$tool" remap --standard "$image" "colors/${name%.*}.gpl" "results/$name.png"
done
# pixels FILE...: prints the colors of all pixels of all files.
pixels() { convert "${@/%/[0]}" -depth 8 rgb:-; }
pixels images/* >wanted
pixels results/* >found
bytes=$((61 * 40 * 3))
[ "$(stat -c %s wanted)" = $((count * bytes)) ] || { echo 'ImageMagick does not read all files' >&2; exit 1; }
cmp wanted found >difference || {
  number=$(sed 's/.*byte \([0-9]*\),.*/\1/' difference)
  echo "$(ls images | sed -n "$(((number - 1) / bytes + 1))p"): pixels differ" >&2
  exit 1
}
echo "$count files"
