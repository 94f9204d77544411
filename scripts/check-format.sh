#!/usr/bin/env bash
# check-format.sh: fails when clang-format would change a file; with --fix it changes them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mode=(--dry-run --Werror)
if [ "${1:-}" = --fix ]; then
  mode=(-i)
fi
find src tests fuzz bench -name '*.h' -o -name '*.cpp' | sort | xargs clang-format-19 "${mode[@]}"
