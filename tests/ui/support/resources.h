#pragma once

#include <iosfwd>

#include "ui/support/program.h"

namespace quillhue {

/// How many objects of the system the program holds.
struct ResourceCount {
  /// Device contexts, brushes, fonts, bitmaps, palettes.
  int gdi = 0;
  /// Windows, menus, icons, cursors, accelerators. Under Wine those of all programs on this display: only a difference
  /// tells something.
  int user = 0;
  /// Files, events, registry keys, threads.
  int kernel = 0;

  friend bool operator==(const ResourceCount&, const ResourceCount&) = default;
};
void PrintTo(const ResourceCount& count, std::ostream* stream);

[[nodiscard]] ResourceCount countResources(const Program& program);

}  // namespace quillhue
