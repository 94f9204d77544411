#pragma once

#include "ui/support/program.h"

namespace quillhue {

/// Numbers of system objects that the program holds.
struct ResourceCount {
  /// Device contexts, brushes, fonts, bitmaps, palettes.
  int gdi = 0;
  /// Windows, menus, icons, cursors, accelerators. Under Wine those of all programs on this display, so only a
  /// difference is meaningful.
  int user = 0;
  /// Files, events, registry keys, threads.
  int kernel = 0;
  /// Megabytes of memory that no other program shares.
  int memory = 0;
};

[[nodiscard]] ResourceCount countResources(const Program& program);
/// Expects that the program holds at most `slack` more objects, and megabytes, than before. The system may keep that
/// much for itself.
void expectNoLeak(const Program& program, const ResourceCount& before, int slack);

}  // namespace quillhue
