#!/usr/bin/env bash
# make.sh PROGRAMS VERSION OUT: makes quillhue-VERSION-win64.zip and quillhue-VERSION-setup.exe in the folder OUT from
# quillhue.exe, quillhue-cli.exe and readme.txt in the folder PROGRAMS. Builds are reproducible: all files get the time
# SOURCE_DATE_EPOCH, by default the time of the last commit.
set -euo pipefail

packaging=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
programs=${1:?usage: make.sh PROGRAMS VERSION OUT} version=$2
mkdir -p "$3"
out=$(cd "$3" && pwd)
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -C "$packaging" log -1 --format=%ct 2>/dev/null || date +%s)}
export TZ=UTC0
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT

# The zip contains a single folder, so that unpacking does not mix its files with others.
folder=$stage/quillhue-$version
files=(quillhue.exe quillhue-cli.exe readme.txt)
mkdir "$folder"
for file in "${files[@]}"; do
  install -m 755 "$programs/$file" "$folder"
done
x86_64-w64-mingw32-strip "$folder"/*.exe
touch -d "@$SOURCE_DATE_EPOCH" "$folder"/*

zip=$out/quillhue-$version-win64.zip setup=$out/quillhue-$version-setup.exe
rm -f "$zip" "$setup"
(cd "$stage" && zip -9 -X -q "$zip" "${files[@]/#/quillhue-$version/}")
makensis -V2 -WX "-DVERSION=$version" "-DPROGRAMS=$folder" "-DOUT=$setup" "$packaging/quillhue.nsi"
