#!/usr/bin/env bash
# fuzz-coverage.sh [FOLDER]: runs the fuzz targets once over their seeds and the corpus that fuzz.sh has kept. Prints the
# share of lines of src/FOLDER (default formats) that they reach, and each line and file that none of them reaches.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
folder=src/${1:-formats}
scripts/need.sh g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpng-dev libjpeg-dev clang-19 \
  libclang-rt-19-dev llvm-19
scripts/build.sh coverage
work=$root/build/coverage
reports=()
for source in fuzz/*_fuzz.cpp; do
  target=$(basename "$source" .cpp)
  mkdir -p "build/fuzz/corpus/$target"
  LLVM_PROFILE_FILE=$work/$target.profraw "$work/fuzz/$target" -runs=0 -timeout=60 "build/fuzz/corpus/$target" \
    tests/data/samples tests/data/standard tests/data/pictures fuzz/seeds fuzz/findings >"$work/$target.log" 2>&1 ||
    { cat "$work/$target.log" >&2; exit 1; }
  llvm-profdata-19 merge -sparse "$work/$target.profraw" -o "$work/$target.profdata"
  llvm-cov-19 export -format=lcov -instr-profile "$work/$target.profdata" "$work/fuzz/$target" >"$work/$target.lcov"
  reports+=("$work/$target.lcov")
done
# In lcov, SF names a file and DA gives a line and how often it ran.
awk -F '[:,]' -v start="$root/$folder/" '
  $1 == "SF" { file = index($2, start) == 1 ? substr($2, length(start) + 1) : "" }
  $1 == "DA" && file { lines[file ":" $2] += $3 }
  END {
    for (line in lines) {
      ++all
      if (lines[line] > 0) ++reached; else print line
    }
    if (all == 0) exit 1
    printf "%d of %d lines reached, %.2f %%\n", reached, all, 100 * reached / all
  }' "${reports[@]}" >"$work/lines"
# Each unreached line with its text.
grep -v ' lines reached, ' "$work/lines" | sort -t : -k 1,1 -k 2,2n | while IFS=: read -r file line; do
  printf '%s:%s: %s\n' "$file" "$line" "$(sed -n "${line}{s/^ *//;p}" "$folder/$file")"
done
# A file that no target links has no lines in the output above.
find "$folder" -name '*.cpp' ! -path '*/windows/*' | sort | while read -r file; do
  grep -qxF "SF:$root/$file" "${reports[@]}" || echo "$file: in no target"
done
grep ' lines reached, ' "$work/lines"
