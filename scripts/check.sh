#!/usr/bin/env bash
# check.sh: runs all checks other than tests: format, icons, layers, headers, clang-tidy, and some seconds of fuzzing.
# It continues after a failure; its last line counts the failures.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
echo "The first run takes about 12 minutes on two cores. Later runs check only the sources that have changed."
scripts/need.sh g++ cmake ninja-build googletest libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev \
  g++-mingw-w64-x86-64-posix clang-19 clang-tidy-19 clang-format-19 libclang-rt-19-dev

# clang-tidy sees the sources without precompiled headers, so it finds missing includes.
configure() { cmake --preset "$1" -B "build/check/$1" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON; }
tidy() {
  local preset
  mkdir -p build/check
  for preset in asan windows; do
    configure $preset >build/check/$preset.log 2>&1 || { cat build/check/$preset.log; return 1; }
  done
  scripts/check-tidy.sh build/check/asan build/check/windows
}
fuzz() { scripts/build.sh fuzz && ctest --test-dir build/fuzz --output-on-failure --parallel "$(nproc)"; }

checks=0 failed=()
check() {
  local name=$1
  shift
  echo "== $name"
  checks=$((checks + 1))
  "$@" || failed+=("$name")
}
check format scripts/check-format.sh
check icons scripts/make-icons.sh --check
check layers scripts/check-layers.sh
check 'what layers rejects' tests/checks/check_layers_tests.sh
check headers scripts/check-headers.sh
check fuzzing fuzz
check clang-tidy tidy
if [ ${#failed[@]} -gt 0 ]; then
  echo "${#failed[@]} of $checks checks failed: ${failed[*]}"
  exit 1
fi
echo "All $checks checks passed"
