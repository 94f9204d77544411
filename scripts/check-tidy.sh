#!/usr/bin/env bash
# check-tidy.sh BUILD: runs clang-tidy on the project's sources that BUILD compiles. A file that was clean is looked at
# again only when it, a header of the project or the rules have changed.
set -euo pipefail
build=$(cd "$1" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."
root=$PWD
clean=$build/tidy
mkdir -p "$clean"
common=$(find src tests fuzz bench -name '*.h' | sort | xargs cat .clang-tidy scripts/check-tidy.sh |
         sha256sum | cut -d' ' -f1)

check() {
  local file=$1 key
  key=$clean/$({ echo "$common" "$file"; cat "$file"; } | sha256sum | cut -d' ' -f1)
  [ ! -e "$key" ] || return 0
  clang-tidy-19 --quiet -p "$build" "$root/$file" 2>/dev/null && touch "$key"
}
export -f check
export build root clean common

sed -n "s|^ *\"file\": \"$root/\(.*\)\".*|\1|p" "$build/compile_commands.json" | sort -u |
  grep -E '^(src|tests|fuzz|bench)/' | xargs -P "$(nproc)" -I{} bash -c 'check {}'
