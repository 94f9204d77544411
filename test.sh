#!/usr/bin/env bash
# test.sh [CTEST OPTION...]: builds everything and runs the tests; the last lines are ctest's summary.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$root"
echo "The first run takes about ten minutes on two cores. Later runs build only what has changed."
scripts/need.sh g++ cmake ninja-build googletest libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev \
  g++-mingw-w64-x86-64-posix wine wine64 fonts-dejavu-core fonts-wine xvfb nsis zip unzip attr groff-base dpkg-dev file
mkdir -p build
if [ ! -f build/wine/system.reg ]; then
  echo "Preparing Wine"
  scripts/wine.sh wineboot --init >build/wine.log 2>&1 || { cat build/wine.log >&2; exit 1; }
fi
for preset in asan windows; do
  scripts/build.sh "$preset"
done
# A Windows program that waits for input until this script ends. Without it, Wine's server ends as soon as no program
# runs, and a program that starts at that moment fails.
coproc { timeout 1800 scripts/wine.sh cmd /q >/dev/null 2>&1; }
# Runs the tests of both builds. The tests of the window mostly wait, so two more than the number of processors run at a
# time.
echo 'subdirs(asan windows)' >build/CTestTestfile.cmake
ctest --test-dir build --output-on-failure --parallel $(($(nproc) + 2)) "$@"
