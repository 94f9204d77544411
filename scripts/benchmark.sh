#!/usr/bin/env bash
# benchmark.sh [OUT]: measures remapping against plain loops and against the other programs that this system has, and
# writes OUT (docs/benchmarks.md). Some ten minutes; the machine should have nothing else to do.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out=$(realpath "${1:-$root/docs/benchmarks.md}")
"$root/scripts/need.sh" g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev \
  libbenchmark-dev python3
for peer in imagemagick graphicsmagick netpbm ffmpeg pngquant python3-pil; do
  "$root/scripts/need.sh" $peer || echo "$peer cannot be installed and is left out"
done
"$root/scripts/build.sh" bench
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The system's own interpreter, which has the system's Pillow. Peers take one thread, as the product does.
TMPDIR=$work MAGICK_THREAD_LIMIT=1 OMP_NUM_THREADS=1 PYTHONDONTWRITEBYTECODE=1 \
  /usr/bin/python3 "$root/scripts/benchmark/main.py" "$root/build/bench" "$work" "$out"
