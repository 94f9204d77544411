#!/usr/bin/env bash
# check-tidy.sh BUILD: runs clang-tidy on the project's sources that BUILD compiles. A file that was clean is looked at
# again only when it, a header of the project or the rules have changed.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."
root=$PWD
clean=$build/tidy
mkdir -p "$clean"
common=$({ find src tests fuzz bench -name '*.h' -o -name .clang-tidy | sort | xargs cat .clang-tidy scripts/check-tidy.sh
           cat CMakeLists.txt cmake/house.cmake; clang-tidy-19 --version; } | sha256sum | cut -d' ' -f1)

check() {
  local file=$1 key
  key=$clean/$({ echo "$common" "$file"; cat "$file"; } | sha256sum | cut -d' ' -f1)
  [ ! -e "$key" ] || return 0
  if clang-tidy-19 --quiet -p "$build" "$root/$file" >"$key.log" 2>&1; then
    mv "$key.log" "$key"
  else
    cat "$key.log"
    rm "$key.log"
    return 1
  fi
}
export -f check
export build root clean common

sed -n "s|^ *\"file\": \"$root/\(.*\)\".*|\1|p" "$build/compile_commands.json" | sort -u |
  grep -E '^(src|tests|fuzz|bench)/' | xargs -P "$(nproc)" -I{} bash -c 'check {}'
