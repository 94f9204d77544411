#!/usr/bin/env bash
# picture.sh: takes README's picture docs/terminal.png of the real tool in a real terminal, on a separate display, and
# makes the pictures in docs/tasks by README's own commands.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
scripts/need.sh xterm xvfb imagemagick g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev
scripts/build.sh native quillhue-cli

work=$(mktemp -d)
# Xvfb chooses a free display number and reports it.
Xvfb -displayfd 3 -screen 0 1000x700x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
server=$!
terminal=
trap 'kill $terminal $server 2>/dev/null || true; wait; rm -rf "$work"' EXIT
while [ ! -s "$work/display" ]; do
  kill -0 $server
  read -r -t 0.1 <> <(:) || true
done
DISPLAY=:$(cat "$work/display")
export DISPLAY

# directColor makes xterm show colors exactly instead of matching them to its own palette.
xterm -xrm 'XTerm*directColor: true' -tn xterm-direct -fa Monospace -fs 11 -geometry 80x13+0+0 -b 8 \
  -bg '#16181d' -fg '#d8dbe2' +sb -e bash -c \
  'export PATH=$PATH:build/native/src; printf "\e[?25l$ quillhue-cli info samples/harbour.gpl\n";
   quillhue-cli info samples/harbour.gpl; touch "$1"; read -r' bash "$work/shown" &
terminal=$!
while [ ! -e "$work/shown" ]; do
  kill -0 $terminal
  read -r -t 0.1 <> <(:) || true
done
read -r -t 1 <> <(:) || true
import -window root -trim +repage docs/terminal.png

mkdir "$work/samples"
cp -r samples/. "$work/samples"
PATH=$PATH:$root/build/native/src
(cd "$work/samples" && eval "$(sed -n 's/^    \$ //p' "$root/README.md")" >"$work/log" || true)
for picture in $(grep -o 'docs/tasks/[a-z]*\.png' README.md); do
  cp "$work/samples/${picture##*/}" "$picture"
done
echo "docs/terminal.png: $(identify -format '%wx%h' docs/terminal.png)"
