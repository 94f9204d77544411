#!/usr/bin/env bash
# take-picture.sh PICTURE PROGRAM [ARGUMENT...]: starts a Windows program on the current display, takes a picture of it
# once the display stays unchanged for a moment, and ends the program. GESTURES may contain xdotool's commands, one per
# line, to carry out before that.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
picture=$1
shift
work=$(mktemp -d)
"$root/scripts/wine.sh" "$@" 2>"$work/log" &
program=$!
trap 'kill $program 2>/dev/null || true; wait $program 2>/dev/null || true; rm -rf "$work"' EXIT

# Waits until the display shows something that stays the same for a second.
settle() {
  local last= now
  for _ in $(seq 60); do
    kill -0 $program
    import -window root "$work/now.png"
    now=$(identify -format '%# %k' "$work/now.png")
    if [ "$now" = "$last" ] && [ "${now#* }" != 1 ]; then
      return
    fi
    last=$now
    read -r -t 1 <> <(:) || true
  done
  echo "the display is never still" >&2
  return 1
}

settle
while IFS= read -r gesture; do
  read -ra words <<<"$gesture"
  [ ${#words[@]} -eq 0 ] || xdotool "${words[@]}"
done <<<"${GESTURES:-}"
settle
# Cuts off the empty display around the window.
convert "$work/now.png" -trim +repage "$picture"
echo "$picture: $(identify -format '%wx%h' "$picture")"
