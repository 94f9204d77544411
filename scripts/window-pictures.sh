#!/usr/bin/env bash
# window-pictures.sh: takes README's pictures of the real editor: docs/intro.png and one for each tab.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
scripts/need.sh xvfb xdotool imagemagick fonts-dejavu-core fonts-wine g++ cmake ninja-build googletest libcli11-dev \
  nlohmann-json3-dev g++-mingw-w64-x86-64-posix wine wine64
scripts/build.sh windows quillhue
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

program=$root/build/windows/src/quillhue.exe
drive=Z:${root//\//\\}
# A new prefix, so that the program starts with default settings.
export QUILLHUE_WINEPREFIX=$root/build/wine-pictures
rm -rf "$QUILLHUE_WINEPREFIX"

# take NAME GESTURES ARGUMENT...: takes docs/NAME.png on a display of 96 dpi. GESTURES are xdotool's commands, one per
# line.
take() {
  local name=$1
  export GESTURES=$2
  shift 2
  scripts/with-display.sh 1024x800 scripts/take-picture.sh "docs/$name.png" "$program" "$@"
}

# The very first start makes the folder of the system's files, which no picture should show.
scripts/with-display.sh 1024x800 scripts/wine.sh wineboot --init 2>"$work/log"
take intro ''
take values 'mousemove 786 697
click 1
sleep 1
key --delay 300 h h h Return
mousemove 480 380
click 1' "$drive\\samples\\harbour.gpl"
take effects 'mousemove 135 56
click 1
mousemove 320 210
mousedown 1
mousemove 500 220
mouseup 1
mousemove 300 300
mousedown 1
mousemove 500 310
mouseup 1
mousemove 840 637
click --repeat 9 --delay 50 1' "$drive\\samples\\harbour.gpl"
# Draws a sky over the sea.
convert -size 640x300 gradient:'#f6cf8a-#c86a6a' -size 640x280 gradient:'#35577c-#141d2c' -append \
  \( -size 640x580 -seed 5 plasma:grey45-grey55 -blur 0x2 \) -compose overlay -composite BMP3:"$work/sea.bmp"
sea=Z:${work//\//\\}\\sea.bmp
take use "mousemove 220 56
click 1
mousemove 750 84
click 1
sleep 2
type $sea
key Return
sleep 2
mousemove 727 149
click 1
mousemove 750 296
click 1" "$drive\\samples\\harbour.gpl"
