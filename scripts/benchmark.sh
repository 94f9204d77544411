#!/usr/bin/env bash
# benchmark.sh [OUT]: compares remapping with plain loops and with the other programs of this system, times the editor under
# Wine, and writes OUT (docs/benchmarks.md). Takes about ten minutes; the machine should be otherwise idle.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out=$(realpath "${1:-$root/docs/benchmarks.md}")
"$root/scripts/need.sh" g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev \
  libbenchmark-dev python3
for peer in imagemagick graphicsmagick netpbm ffmpeg pngquant python3-pil; do
  "$root/scripts/need.sh" $peer || echo "$peer cannot be installed and is left out"
done
"$root/scripts/build.sh" bench
"$root/scripts/need.sh" googletest g++-mingw-w64-x86-64-posix wine wine64 fonts-dejavu-core fonts-wine xvfb
"$root/scripts/build.sh" windows quillhue empty_window first_window editor_bench
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The system's interpreter, which finds the system's Pillow. The other programs run with one thread, like the product.
TMPDIR=$work MAGICK_THREAD_LIMIT=1 OMP_NUM_THREADS=1 PYTHONDONTWRITEBYTECODE=1 \
  /usr/bin/python3 "$root/scripts/benchmark/main.py" "$root/build/bench" "$work" "$out"
/usr/bin/python3 "$root/scripts/benchmark/dithering.py" "$root/build/bench/src/quillhue-cli" "$work/4096x3072.bmp" \
  "$work/adaptive-256.gpl" >>"$out"
/usr/bin/python3 "$root/scripts/benchmark/palette_error.py" "$root/build/bench/src/quillhue-cli" \
  "$root/samples/art/sea.jpg" >>"$out"
/usr/bin/python3 "$root/scripts/benchmark/editor.py" "$root/build/windows" "$work" >>"$out"
