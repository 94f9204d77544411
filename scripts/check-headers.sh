#!/usr/bin/env bash
# check-headers.sh: compiles each header alone, to find missing includes. It skips headers that the source of the same name
# includes first, because clang-tidy compiles those sources.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

check() {
  local header=$1 source=${1%.h}.cpp compiler=(g++)
  if [ -f "$source" ] && [[ $header == */"$(sed -n 's/^#include "\(.*\)"$/\1/p;T;q' "$source")" ]]; then
    return
  fi
  case $header in
    src/ui/logic/*) ;;
    src/ui/* | tests/ui/* | bench/editor/*)
      compiler=(x86_64-w64-mingw32-g++-posix -DUNICODE -DNOMINMAX -DWIN32_LEAN_AND_MEAN -DSTRICT -D_WIN32_WINNT=0x0A00) ;;
  esac
  "${compiler[@]}" -std=c++23 -fsyntax-only -DQUILLHUE_VERSION='""' -Isrc -Itests -I. -isystem /usr/src/googletest/googletest/include \
    -x c++ - <<<"#include \"$PWD/$header\""
}
export -f check

find src tests fuzz bench -name '*.h' | sort | xargs -P "$(nproc)" -n1 bash -c 'check "$1"' check
