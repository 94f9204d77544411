#!/usr/bin/env bash
# sample-images.sh: draws the images in samples/art, which README uses. The sprite has unused entries and a duplicate.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
scripts/need.sh imagemagick g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev
scripts/build.sh native quillhue-cli
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir -p samples/art/sprites
convert -size 320x104 gradient:'#f6cf8a-#c86a6a' -size 320x96 gradient:'#35577c-#141d2c' -append \
  \( -size 320x200 -seed 5 plasma:grey45-grey55 -blur 0x2 \) -compose overlay -composite \
  -fill '#fff1c8' -draw 'circle 230,78 230,60' -fill '#1d2b40' -draw 'polygon 60,106 60,58 92,104' \
  -draw 'polygon 40,108 104,108 94,120 50,120' -blur 0x0.6 -quality 88 samples/art/sea.jpg
convert -size 32x24 'xc:#4c86ae' +antialias -fill '#f0e6d2' -draw 'polygon 15,2 15,15 6,15' \
  -fill '#c44b3a' -draw 'polygon 17,4 17,15 25,15' -fill '#6b4226' -draw 'polygon 4,17 28,17 24,21 8,21' \
  -fill '#1f3f66' -draw 'rectangle 0,21 31,23' "$work/boat.png"
printf '%s\n' 4C86AE F0E6D2 C44B3A 2E7D32 6B4226 F0E6D2 1F3F66 FFD54F >"$work/boat.hex"
build/native/src/quillhue-cli remap "$work/boat.png" "$work/boat.hex" samples/art/sprites/boat.png --force
