#!/usr/bin/env bash
# check-format.sh: fails if clang-format would change a file. With --fix it changes the files.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mode=(--dry-run --Werror)
if [ "${1:-}" = --fix ]; then
  mode=(-i)
fi
find src tests fuzz bench -name '*.h' -o -name '*.cpp' | sort | xargs clang-format-19 "${mode[@]}"
