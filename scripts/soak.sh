#!/usr/bin/env bash
# soak.sh SECONDS [SEED]: sends random actions to the editor's window for SECONDS. A failure prints the seed; a run with
# the same seed repeats the actions.
set -euo pipefail
usage="Usage: soak.sh SECONDS [SEED]"
export QUILLHUE_SOAK_SECONDS=${1:?$usage} QUILLHUE_SOAK_SEED=${2:-$RANDOM}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
scripts/need.sh g++ cmake ninja-build googletest libcli11-dev nlohmann-json3-dev \
  g++-mingw-w64-x86-64-posix wine wine64 fonts-dejavu-core fonts-wine xvfb
scripts/build.sh windows ui_tests
exec scripts/ui-tests.sh soak 96 build/windows/tests/ui/ui_tests.exe '--gtest_filter=Soak.*' \
  "Z:$root/build/windows/src/quillhue.exe"
