#!/usr/bin/env bash
# run.sh [PALETTE FILE]: builds Quillhue's editor and starts it, with the palette if one is given.
set -euo pipefail

usage="Usage: ./run.sh [palette file]"
if [[ ${1:-} == --help || ${1:-} == -h ]]; then
  echo "$usage"
  exit 0
fi
if [ $# -gt 1 ]; then
  echo "$usage" >&2
  exit 2
fi
if [ $# -eq 1 ] && [ ! -f "$1" ]; then
  echo "$1: no such file" >&2
  exit 1
fi
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
file=()
if [ $# -eq 1 ]; then
  # As Wine names it: drive Z is this system's root.
  path=$(realpath "$1")
  file=("Z:${path//\//\\}")
fi
cd "$root"
scripts/need.sh g++ cmake ninja-build googletest libcli11-dev nlohmann-json3-dev \
  g++-mingw-w64-x86-64-posix wine wine64 fonts-dejavu-core fonts-wine
scripts/build.sh windows quillhue
program=$root/build/windows/src/quillhue.exe
if [ -n "${DISPLAY:-}" ]; then
  exec scripts/wine.sh "$program" "${file[@]}"
fi
scripts/need.sh xvfb imagemagick
echo "There is no display here: its window is shown on one that nobody sees."
scripts/with-display.sh 1024x800 scripts/take-picture.sh build/window.png "$program" "${file[@]}"
