#!/usr/bin/env bash
# package.sh: builds the programs for Windows and makes build/package/quillhue-VERSION-win64.zip and -setup.exe.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
scripts/need.sh cmake ninja-build googletest libcli11-dev nlohmann-json3-dev g++-mingw-w64-x86-64-posix wine wine64 \
  nsis zip
scripts/build.sh windows quillhue quillhue-cli
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
packaging/make.sh build/windows/src "$version" build/package
ls -l build/package/quillhue-"$version"-*
