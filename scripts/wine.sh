#!/usr/bin/env bash
# wine.sh PROGRAM [ARGUMENT...]: runs a Windows program under Wine, in the project's own prefix below build/.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
mkdir -p "$root/build"
export WINEPREFIX=${QUILLHUE_WINEPREFIX:-$root/build/wine}
# Wine reads the host's file names and arguments in the encoding of the locale.
export LC_ALL=C.UTF-8
export WINEDEBUG=-all
# winemenubuilder would copy Windows shortcuts into the host's menus.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
exec wine "$@"
