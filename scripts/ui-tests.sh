#!/usr/bin/env bash
# ui-tests.sh NAME DPI PROGRAM [ARGUMENT...]: runs a Windows program under Wine with its own display, at a resolution of
# DPI, and its own registry. Runs with the same NAME take turns.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
name=$1 dpi=$2
shift 2
base=$root/build/wine
work=$root/build/wine-$name
mkdir -p "$root/build"
exec 9>"$work.lock"
flock 9

# The system's files are shared with the Wine prefix of the other tests, because making them takes half a minute and
# much disk space.
if [ ! -f "$base/system.reg" ]; then
  QUILLHUE_WINEPREFIX=$base "$root/scripts/wine.sh" wineboot --init >"$work.log" 2>&1
  WINEPREFIX=$base wineserver --wait
fi
rm -rf "$work"
mkdir "$work"
cp -a "$base"/*.reg "$base/.update-timestamp" "$base/dosdevices" "$work"
ln -s "$base/drive_c" "$work/drive_c"
# Without a window manager, Wine must not wait for one whenever a window closes.
cat >>"$work/user.reg" <<END

[Control Panel\\\\Desktop]
"LogPixels"=dword:$(printf %08x "$dpi")

[Software\\\\Wine\\\\X11 Driver]
"Managed"="N"
END

started=() signals=()
# start SIGNAL: registers the process just started and the signal that ends it.
start() {
  started+=($!)
  signals+=("$1")
}
# Ends the processes in reverse order.
finish() {
  local i
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do
    kill -s "${signals[i]}" "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
}
trap finish EXIT
trap 'exit 143' TERM INT

# await PID CONDITION...: waits until the command succeeds. Fails if the process ends first.
await() {
  local pid=$1
  shift
  until "$@"; do
    kill -0 "$pid"
    read -r -t 0.05 <> <(:) || true
  done
}

# Xvfb chooses a free display number and reports it.
Xvfb -displayfd 3 -screen 0 1920x1440x24 -nolisten tcp 3>"$work/display" 2>"$work/display.log" 9>&- &
start TERM
await $! test -s "$work/display"
DISPLAY=:$(<"$work/display")
export DISPLAY QUILLHUE_WINEPREFIX=$work

# Wine's server is started here so that it can be ended here. The place of its socket depends on the build of Wine.
socket=server-$(stat --format=%D "$work")-$(printf %x "$(stat --format=%i "$work")")/socket
is_listening() { compgen -G "/tmp/.wine-$(id -u)/$socket" || compgen -G "/tmp/wine-*/$socket"; } >/dev/null
WINEPREFIX=$work wineserver --foreground >"$work/server.log" 2>&1 9>&- &
# On SIGINT the server ends the system's own programs before itself. Otherwise they would survive and keep their output
# open.
start INT
await $! is_listening

# In the background, because a signal to this script would wait for the end of a foreground process.
"$root/scripts/wine.sh" "$@" 9>&- &
start TERM
wait $!
