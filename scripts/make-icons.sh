#!/usr/bin/env bash
# make-icons.sh: renders the drawings in src/ui/resources/art into the icons and the cursor beside that folder.
# The results are kept in the repository, so building the program needs no renderer.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
resources=src/ui/resources
cd "$root"

sums() {
  local LC_ALL=C
  sha256sum scripts/make-icons.sh $resources/art/*.svg $resources/*.cur $resources/*.ico
}

if [ "${1:-}" = --check ]; then
  diff $resources/rendered.sha256 <(sums) || { echo "run scripts/make-icons.sh and commit what it changes"; exit 1; }
  exit 0
fi

scripts/need.sh librsvg2-bin icoutils
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# image DRAWING:PIXELS: renders a drawing and prints the file's name.
image() {
  local drawing=${1%:*} pixels=${1#*:}
  local file=$work/$drawing-at-$pixels.png
  rsvg-convert --width "$pixels" --height "$pixels" --output "$file" $resources/art/"$drawing".svg && echo "$file"
}

# icon NAME DRAWING:PIXELS...: images above 64 pixels are stored as PNG, because a bitmap would be many times larger.
icon() {
  local name=$1 images=() each
  shift
  for each in "$@"; do
    [ "${each#*:}" -le 64 ] || images+=(--raw)
    images+=("$(image "$each")")
  done
  icotool --create --output $resources/"$name".ico "${images[@]}"
}

icon quillhue quillhue-small:16 quillhue-small:24 quillhue:32 quillhue:48 quillhue:64 quillhue:72 quillhue:96 quillhue:256
# Buttons and the About dialog show 48 pixels at 96 dpi. 60, 72, 84 and 96 pixels are for 120, 144, 168 and 192 dpi.
for name in blank sixteen grey rgb; do
  icon $name $name-16:16 $name-24:24 $name-16:32 $name:48 $name:60 $name:72 $name:84 $name:96
done
icon open open-16:16 open-24:24 open:32 open:48 open:60 open:72 open:84 open:96
# The hotspot is the arrow's tip, which is in the corner at every size.
icotool --create --cursor --hotspot-x 0 --hotspot-y 0 --output $resources/row.cur \
  "$(image row:32)" "$(image row-48:48)" "$(image row:64)"
sums >$resources/rendered.sha256
