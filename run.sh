#!/usr/bin/env bash
# run.sh [PALETTE FILE]: builds Quillhue and shows the palette in the terminal.
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
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
{
  "$root/scripts/need.sh" g++ cmake ninja-build libcli11-dev nlohmann-json3-dev
  "$root/scripts/build.sh" native quillhue-cli
} >&2
exec "$root/build/native/src/quillhue-cli" info -- "${1-$root/samples/harbour.gpl}"
