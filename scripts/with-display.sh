#!/usr/bin/env bash
# with-display.sh WIDTHxHEIGHT COMMAND...: runs a command on a separate, invisible display.
set -euo pipefail

size=$1
shift
work=$(mktemp -d)
# Xvfb chooses a free display number and reports it.
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$work/display" 2>"$work/log" &
server=$!
trap 'kill $server 2>/dev/null || true; wait $server 2>/dev/null || true; rm -rf "$work"' EXIT
while [ ! -s "$work/display" ]; do
  kill -0 $server || { cat "$work/log" >&2; exit 1; }
  read -r -t 0.05 <> <(:) || true
done
DISPLAY=:$(<"$work/display") "$@"
