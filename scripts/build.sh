#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures and builds, and shows the compiler's output only when something fails.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
preset=${1:?usage: build.sh PRESET [TARGET...]}
shift
echo "Building $preset${*:+: $*}"
log=$root/build/$preset.log
mkdir -p "$root/build"
if ! { cd "$root" && cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}; } >"$log" 2>&1; then
  cat "$log" >&2
  exit 1
fi
