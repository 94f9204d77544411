#!/usr/bin/env bash
# fuzz.sh [MINUTES [TARGET...]]: runs the fuzz targets for MINUTES in all (default 10), one on each processor at a time.
# Inputs that reach new code are kept in build/fuzz/corpus/TARGET for the next run, and minimized at the end. Prints a
# table; fails if an input ended a target, took a minute or 2 GB. Such inputs are in build/fuzz/findings.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
minutes=${1:-10}
shift || true
scripts/need.sh g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev clang-19 libclang-rt-19-dev
scripts/build.sh fuzz
targets=("$@")
if [ ${#targets[@]} = 0 ]; then
  for source in fuzz/*_fuzz.cpp; do
    targets+=("$(basename "$source" .cpp)")
  done
fi
export work=$root/build/fuzz seeds="$root/tests/data/samples $root/tests/data/standard $root/tests/data/pictures $root/fuzz/seeds $root/fuzz/findings"
export seconds=$((minutes * 60 * $(nproc) / ${#targets[@]}))
mkdir -p "$work/findings" "$work/logs"

# Runs a target, and keeps the smallest inputs that reach all that its corpus and the seeds reach.
fuzz() {
  local corpus=$work/corpus/$1 program=$work/fuzz/$1
  mkdir -p "$corpus"
  # shellcheck disable=SC2086
  "$program" -max_total_time="$seconds" -timeout=60 -rss_limit_mb=2048 -max_len=2048 -print_final_stats=1 \
    -artifact_prefix="$work/findings/$1-" "$corpus" $seeds >"$work/logs/$1" 2>&1 || true
  rm -rf "$corpus.new"
  mkdir "$corpus.new"
  # shellcheck disable=SC2086
  if "$program" -merge=1 -timeout=60 -max_len=2048 "$corpus.new" "$corpus" $seeds >"$work/logs/$1.merge" 2>&1; then
    rm -rf "$corpus"
    mv "$corpus.new" "$corpus"
  fi
}
export -f fuzz
printf '%s\n' "${targets[@]}" | xargs -P "$(nproc)" -I{} bash -c 'fuzz {}'

total=0 found=0
printf '%-20s %12s %9s %9s %8s %8s %9s\n' target executions 'a second' coverage new 'slowest' findings
for target in "${targets[@]}"; do
  log=$work/logs/$target
  number() { sed -n "s/^stat::$1: *//p" "$log"; }
  coverage() { sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | "$1" -n 1; }
  findings=$(find "$work/findings" -name "$target-*" | wc -l)
  runs=$(number number_of_executed_units)
  printf '%-20s %12d %9d %9d %8d %7ds %9d\n' "$target" "${runs:-0}" "$(number average_exec_per_sec)" \
    "$(coverage tail)" "$(($(coverage tail) - $(coverage head)))" "$(number slowest_unit_time_sec)" "$findings"
  total=$((total + ${runs:-0})) found=$((found + findings))
done
echo "$total executions, $found findings"
[ "$found" = 0 ]
