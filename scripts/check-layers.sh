#!/usr/bin/env bash
# check-layers.sh [ROOT]: rejects includes that break the layers of src/README.md, system headers outside their places,
# and access to input bytes that bypasses the byte source.
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"

# Folders and headers that each folder may include, beside itself and the standard library.
declare -A allowed=(
  [src/core]=""
  [src/system]="core"
  [src/formats]="core system"
  [src/colormodes]="core"
  [src/effects]="core"
  [src/commands]="core"
  [src/remap]="core formats/work_image.h"
  [src/pictures]="core formats/work_image.h formats/indexed_pixels.h formats/image_limits.h formats/byte_source.h formats/failure.h"
  [src/cli]="core commands system formats colormodes effects remap pictures"
  [src/ui/logic]="core commands system formats colormodes effects remap pictures"
  [src/ui/win32]="core ui/logic/geometry.h"
  [src/ui]="core commands system formats colormodes effects remap pictures"
)
[ -d src ] || { echo "no src/ in $PWD"; exit 1; }
status=0
complain() {
  echo "$*"
  status=1
}

while IFS=: read -r file line include; do
  case $file in
    src/ui/logic/*) layer=src/ui/logic ;;
    src/ui/win32/*) layer=src/ui/win32 ;;
    *) layer=${file#src/} layer=src/${layer%%/*} ;;
  esac
  path=${include#*[<\"]} path=${path%%[>\"]*}
  if [ -z "${allowed[$layer]+known}" ]; then
    complain "$file: the folder is no layer of src/README.md"
    continue
  fi
  # System headers end in .h. Headers of the standard library have neither an ending nor a folder.
  if [[ $include == *'<'* && $path == *.h ]]; then
    case $file:$path in
      src/remap/*:emmintrin.h | src/formats/byte_sort.cpp:emmintrin.h | src/formats/images/pcx_runs.cpp:emmintrin.h) continue ;;  # the instructions of SSE2
      src/pictures/posix/*:png.h | src/pictures/posix/*:jpeglib.h | src/pictures/posix/*:jerror.h) continue ;;
      src/pictures/windows/* | src/system/posix/* | src/system/windows/*) continue ;;
    esac
    [[ ($file == src/ui/* && $layer != src/ui/logic) || $file == src/cli/program_* ]] ||
      complain "$file:$line: <$path> belongs to src/ui (not its logic), src/system/posix, src/system/windows," \
        "src/pictures/windows and the tool's program_*.cpp"
    continue
  fi
  [[ $path == */* ]] || continue
  # The tool's libraries take longer to compile than the tool itself, so only one file includes each of them.
  case $file:$path in
    src/cli/command_line.cpp:CLI/* | src/cli/json.cpp:nlohmann/* | src/cli/json.h:nlohmann/json_fwd.hpp) continue ;;
  esac
  fine=no
  for prefix in ${layer#src/} ${allowed[$layer]}; do
    [[ $path == "$prefix" || $path == "$prefix"/* ]] && fine=yes
  done
  [ $fine = yes ] || complain "$file:$line: $layer may not include $path"
done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include' src --include='*.h' --include='*.cpp')

# forbid HEADERS TEXT FILE...: complains about each of these files that includes a header of ui/ matching HEADERS.
forbid() {
  local headers=$1 text=$2 hit
  shift 2
  while IFS= read -r hit; do
    complain "$hit: $text"
  done < <(grep -rnE "include \"ui/($headers)" --include='*.h' --include='*.cpp' "$@" 2>/dev/null || true)
}
# The window is made last, from complete parts. It knows none of its parts, and only the application knows it.
mapfile -t window < <(find src/ui -maxdepth 1 -name '*.*' ! -name 'application.*' ! -name program.cpp 2>/dev/null)
[ ${#window[@]} = 0 ] || forbid '(screens|tabs|services|dialogs)/' 'the main window takes its parts from the application' "${window[@]}"
mapfile -t others < <(find src -type f ! -path src/ui/application.h ! -path src/ui/main_window.cpp)
forbid 'main_window\.h' 'only the application knows the main window' "${others[@]}"
forbid '(screens|tabs)/|main_ui\.h|window_context\.h' 'dialogs and services take what they need' src/ui/dialogs src/ui/services
forbid 'screens/|main_ui\.h' 'a tab knows only its context' src/ui/tabs
while IFS= read -r hit; do
  complain "$hit: the system's headers come by ui/win32/system.h"
done < <(grep -rnE '#include <.*\.h>' src --include='*.h' --include='*.cpp' | grep '^src/ui/' | grep -v '^src/ui/win32/system.h:' || true)

# files.cpp converts the bytes of a stream. All other code in formats/ accesses bytes by source and sink.
while IFS= read -r hit; do
  complain "$hit: bytes are read through ByteSource"
done < <(grep -rnE 'reinterpret_cast|memcpy|memmove' src/formats --include='*.h' --include='*.cpp' |
         grep -v '^src/formats/files.cpp:' || true)
exit $status
