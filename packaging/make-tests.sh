#!/usr/bin/env bash
# make-tests.sh BUILD VERSION OUT: makes quillhue-VERSION-tests.zip in the folder OUT from a build for Windows: the
# programs, all tests with their data, and a script that runs them on any Windows 10 or 11.
set -euo pipefail

packaging=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$(cd "${1:?usage: make-tests.sh BUILD VERSION OUT}" && pwd) version=$2
mkdir -p "$3"
out=$(cd "$3" && pwd)
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT

folder=$stage/quillhue-$version-tests
mkdir -p "$folder/tests"
cp "$build"/src/{quillhue,quillhue-cli}.exe "$build/src/readme.txt" "$packaging/../docs/first-run-on-windows.md" "$folder"
cp "$build"/tests/*_tests.exe "$build"/tests/ui/{ui_tests.exe,menu_probe.dll} "$build"/fuzz/*_fuzz.exe "$folder/tests"
x86_64-w64-mingw32-strip "$folder"/*.exe "$folder"/tests/*
cp -r "$packaging/../tests/data" "$folder/data"
cp -r "$packaging"/../fuzz/{seeds,findings} "$folder/data"
rm -f "$folder"/data/*.py
# Windows runs batch files correctly only if their lines end with CR LF.
sed 's/$/\r/' "$packaging/run-tests.cmd" >"$folder/run-tests.cmd"
rm -f "$out/quillhue-$version-tests.zip"
(cd "$stage" && zip -X -q -r "$out/quillhue-$version-tests.zip" "quillhue-$version-tests")
