#!/usr/bin/env bash
# wine.sh PROGRAM [ARGUMENT...]: runs a Windows program under Wine, in a prefix of its own below build/.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$root/build"
export WINEPREFIX=${QUILLHUE_WINEPREFIX:-$root/build/wine}
# Wine takes the system's file names and arguments in the encoding of the locale.
export LC_ALL=C.UTF-8
export WINEDEBUG=-all
# winemenubuilder would put a shortcut of Windows into this system's own menus.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
exec wine "$@"
