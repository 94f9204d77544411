#!/usr/bin/env bash
# check-tidy.sh BUILD...: runs clang-tidy on the project's sources in these builds, with the options of the first build
# that compiles the source. A clean file is checked again only if it, a header of the project or the rules have changed.
# For a cross build, clang derives the target system and its headers from the compiler's name.
set -euo pipefail
builds=()
for build in "$@"; do
  [ -f "$build/compile_commands.json" ] || { echo "$build is not configured"; exit 1; }
  builds+=("$(cd "$build" && pwd)")
done
cd "$(dirname "${BASH_SOURCE[0]}")/.."
root=$PWD
clean=${builds[0]}/tidy
mkdir -p "$clean"
common=$({ find src tests fuzz bench -name '*.h' -o -name .clang-tidy | sort | xargs cat .clang-tidy scripts/check-tidy.sh
           cat CMakeLists.txt cmake/house.cmake; clang-tidy-19 --version; } | sha256sum | cut -d' ' -f1)

# check BUILD<tab>FILE: checks a file. The last line of its output is "done".
check() {
  local build file key
  IFS=$'\t' read -r build file <<<"$1"
  key=$clean/$({ echo "$common" "$file"; cat "$file"; } | sha256sum | cut -d' ' -f1)
  if [ -e "$key" ]; then
    echo done
  elif clang-tidy-19 --quiet -p "$build" "$root/$file" >"$key.log" 2>&1; then
    mv "$key.log" "$key"
    echo done
  else
    cat "$key.log"
    rm "$key.log"
    echo done
    return 1
  fi
}
export -f check
export root clean common

files=$(for build in "${builds[@]}"; do
  sed -n 's/^ *"file": "\(.*\)",\?$/\1/p' "$build/compile_commands.json" | while IFS= read -r file; do
    [[ $file != "$root"/@(src|tests|fuzz|bench)/* ]] || printf '%s\t%s\n' "$build" "${file#"$root"/}"
  done
done | sort -t$'\t' -k2,2 -s -u)
xargs -d '\n' -P "$(nproc)" -n1 bash -c 'check "$1"' check <<<"$files" |
  awk -v all="$(wc -l <<<"$files")" '
    $0 != "done" { print; next }
    ++count % 25 == 0 || count == all { print "clang-tidy: " count " of " all " files"; fflush() }'
