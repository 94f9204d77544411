#!/usr/bin/env bash
# package.sh: builds the programs and makes in build/package quillhue-VERSION-win64.zip, -setup.exe and -tests.zip (all
# tests) for Windows, and quillhue-cli_VERSION_ARCHITECTURE.deb for Debian.
set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")"
scripts/need.sh cmake ninja-build googletest libcli11-dev nlohmann-json3-dev g++-mingw-w64-x86-64-posix wine wine64 \
  nsis zip g++ libpng-dev libjpeg-dev dpkg-dev file
scripts/build.sh native quillhue-cli documents
scripts/build.sh windows
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/CMakeCache.txt)
packaging/make.sh build/windows/src "$version" build/package
packaging/make-tests.sh build/windows "$version" build/package
(cd build/native && cpack -B "$OLDPWD/build/package" >/dev/null)
rm -r build/package/_CPack_Packages
ls -l build/package/quillhue-"$version"-* build/package/quillhue-cli_*.deb
