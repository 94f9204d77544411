#!/usr/bin/env bash
# soak.sh COUNT [SEED [DPI]]: sends COUNT random actions to the editor's window, or sends them for COUNT seconds if an s
# follows the number. A failure prints the seed; a run with the same seed repeats the actions.
set -euo pipefail
count=${1:?Usage: soak.sh COUNT|SECONDSs [SEED [DPI]]} dpi=${3:-96}
export QUILLHUE_SOAK_SEED=${2:-$RANDOM}
case $count in
  *s) export QUILLHUE_SOAK_SECONDS=${count%s} ;;
  *) export QUILLHUE_SOAK_ACTIONS=$count ;;
esac
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
scripts/need.sh g++ cmake ninja-build googletest libcli11-dev nlohmann-json3-dev \
  g++-mingw-w64-x86-64-posix wine wine64 fonts-dejavu-core fonts-wine xvfb
scripts/build.sh windows ui_tests
exec scripts/ui-tests.sh "soak-$dpi" "$dpi" build/windows/tests/ui/ui_tests.exe '--gtest_filter=Soak.*' \
  "Z:$root/build/windows/src/quillhue.exe"
