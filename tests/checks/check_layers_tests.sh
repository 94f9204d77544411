#!/usr/bin/env bash
# Puts each kind of forbidden line into a tree of its own and expects the check to name it, and nothing in a clean one.
set -euo pipefail
check=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../scripts" && pwd)/check-layers.sh
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT

expect() {
  local wanted=$1 file=$2 line=$3 found=accepted
  mkdir -p "$tree/src/core" "$tree/src/formats" "$(dirname "$tree/$file")"
  echo "$line" >"$tree/$file"
  "$check" "$tree" >/dev/null || found=rejected
  rm -r "$tree/src"
  [ "$found" = "$wanted" ] || { echo "$file with '$line' is $found"; exit 1; }
}

expect accepted src/formats/a.cpp '#include "core/palette.h"'
expect accepted src/core/a.cpp '#include <vector>'
expect accepted src/ui/win32/system.h '#include <windows.h>'
expect rejected src/ui/win32/a.cpp '#include <windows.h>'
expect rejected src/ui/main_window.cpp '#include "ui/tabs/tab.h"'
expect rejected src/ui/tabs/a.cpp '#include "ui/main_window.h"'
expect accepted src/ui/application.h '#include "ui/main_window.h"'
expect accepted src/remap/a.cpp '#include "formats/work_image.h"'
expect rejected src/remap/a.cpp '#include "formats/files.h"'
expect rejected src/core/a.cpp '#include "formats/files.h"'
expect rejected src/core/a.cpp '  #  include <nlohmann/json.hpp>'
expect rejected src/formats/a.h '#include "cli/console.h"'
expect accepted src/cli/command_line.cpp '#include <CLI/CLI.hpp>'
expect rejected src/cli/command_line.h '#include <CLI/CLI.hpp>'
expect accepted src/cli/json.cpp '#include <nlohmann/json.hpp>'
expect rejected src/cli/a.cpp '#include <nlohmann/json.hpp>'
expect rejected src/cli/a.h '#include "ui/grid.h"'
expect accepted src/pictures/a.h '#include "formats/work_image.h"'
expect rejected src/pictures/a.h '#include "formats/files.h"'
expect accepted src/pictures/posix/a.h '#include <png.h>'
expect rejected src/pictures/posix/a.h '#include <unistd.h>'
expect rejected src/pictures/a.cpp '#include <png.h>'
expect accepted src/pictures/windows/a.cpp '#include <wincodec.h>'
expect rejected src/pictures/a.cpp '#include <windows.h>'
expect rejected src/formats/a.h '#include "pictures/png_encoder.h"'
expect accepted src/ui/logic/a.h '#include "effects/effects.h"'
expect rejected src/ui/logic/a.h '#include "ui/win32/handle.h"'
expect rejected src/ui/logic/a.h '#include "ui/main_window.h"'
expect rejected src/ui/logic/a.h '#include "cli/output.h"'
expect rejected src/effects/a.h '#include "ui/logic/geometry.h"'
expect rejected src/cli/a.cpp '#include <windows.h>'
expect rejected src/ui/logic/a.cpp '#include <windows.h>'
expect rejected src/core/a.cpp '#include <unistd.h>'
expect rejected src/formats/a.cpp '#include <sys/socket.h>'
expect rejected src/ui/logic/a.cpp '#include <commctrl.h>'
expect accepted src/cli/program_posix.cpp '#include <sys/ioctl.h>'
expect accepted src/system/windows/a.cpp '#include <windows.h>'
expect rejected src/system/a.cpp '#include <fcntl.h>'
expect rejected src/system/posix/a.cpp '#include "formats/files.h"'
expect accepted src/formats/a.h '#include "system/file_system.h"'
expect rejected src/misc/a.cpp '#include "core/palette.h"'
expect rejected src/formats/a.cpp 'std::memcpy(&value, bytes, 4);'
