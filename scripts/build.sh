#!/usr/bin/env bash
# build.sh PRESET [TARGET...]: configures and builds. It shows the number of finished steps, and the compiler's output only
# if something fails.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
preset=${1:?usage: build.sh PRESET [TARGET...]}
shift
cd "$root"
echo "Building $preset${*:+: $*}"
log=$root/build/$preset.log
mkdir -p "$root/build"

# Copies ninja's output to the log and shows the number of finished steps: in a terminal on a line that it overwrites,
# elsewhere on a new line every 15 seconds.
show_steps() {
  local line steps='' shown=$SECONDS
  while IFS= read -r line; do
    printf '%s\n' "$line" >>"$log"
    [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
    steps="$preset: ${BASH_REMATCH[1]} of ${BASH_REMATCH[2]} steps"
    if [ -t 1 ]; then
      printf '\r%s' "$steps"
    elif ((SECONDS - shown >= 15)); then
      shown=$SECONDS
      echo "$steps"
    fi
  done
  [ -z "$steps" ] || [ ! -t 1 ] || echo
}

if ! { cmake --preset "$preset" >"$log" 2>&1 &&
       cmake --build --preset "$preset" ${1:+--target "$@"} 2>&1 | show_steps; }; then
  cat "$log" >&2
  exit 1
fi
