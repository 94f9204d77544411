#!/usr/bin/env bash
# package.sh: builds for Windows and makes build/package/quillhue-VERSION-win64.zip, -setup.exe, and -tests.zip, which
# contains all tests.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
scripts/need.sh cmake ninja-build googletest libcli11-dev nlohmann-json3-dev g++-mingw-w64-x86-64-posix wine wine64 \
  nsis zip
scripts/build.sh windows
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
packaging/make.sh build/windows/src "$version" build/package
packaging/make-tests.sh build/windows "$version" build/package
ls -l build/package/quillhue-"$version"-*
