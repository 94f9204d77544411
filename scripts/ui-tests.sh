#!/usr/bin/env bash
# ui-tests.sh NAME DPI PROGRAM [ARGUMENT...]: runs a Windows program under Wine on a display of its own, whose resolution
# the programs there see as DPI, and with a registry of its own. What is started here under the same NAME takes turns.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
name=$1 dpi=$2
shift 2
base=$root/build/wine
work=$root/build/wine-$name
mkdir -p "$root/build"
exec 9>"$work.lock"
flock 9

# The system's files are those of the prefix of the other tests, which takes half a minute to make and much room.
if [ ! -f "$base/system.reg" ]; then
  QUILLHUE_WINEPREFIX=$base "$root/scripts/wine.sh" wineboot --init >"$work.log" 2>&1
  WINEPREFIX=$base wineserver --wait
fi
rm -rf "$work"
mkdir "$work"
cp -a "$base"/*.reg "$base/.update-timestamp" "$base/dosdevices" "$work"
ln -s "$base/drive_c" "$work/drive_c"
# There is no window manager here: Wine is not to wait for one whenever a window closes.
cat >>"$work/user.reg" <<END

[Control Panel\\\\Desktop]
"LogPixels"=dword:$(printf %08x "$dpi")

[Software\\\\Wine\\\\X11 Driver]
"Managed"="N"
END

started=() signals=()
# start SIGNAL: what was just started ends by that signal.
start() {
  started+=($!)
  signals+=("$1")
}
# In turn, the last one first.
finish() {
  local i
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do
    kill -s "${signals[i]}" "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
}
trap finish EXIT
trap 'exit 143' TERM INT

# await PID CONDITION...: until the command succeeds; fails when the process ends before.
await() {
  local pid=$1
  shift
  until "$@"; do
    kill -0 "$pid"
    read -r -t 0.05 <> <(:) || true
  done
}

# Xvfb takes a free display number and tells it.
Xvfb -displayfd 3 -screen 0 1920x1440x24 -nolisten tcp 3>"$work/display" 2>"$work/display.log" 9>&- &
start TERM
await $! test -s "$work/display"
DISPLAY=:$(<"$work/display")
export DISPLAY QUILLHUE_WINEPREFIX=$work

# Wine's server, started here so that it can be ended here. Where its socket is depends on who built Wine.
socket=server-$(stat --format=%D "$work")-$(printf %x "$(stat --format=%i "$work")")/socket
is_listening() { compgen -G "/tmp/.wine-$(id -u)/$socket" || compgen -G "/tmp/wine-*/$socket"; } >/dev/null
WINEPREFIX=$work wineserver --foreground >"$work/server.log" 2>&1 9>&- &
# Interrupted, it ends the system's own programs before itself; they would live on without it, and keep what they write
# to open.
start INT
await $! is_listening

# In the background, because a signal to this script waits for the end of what is in the foreground.
"$root/scripts/wine.sh" "$@" 9>&- &
start TERM
wait $!
