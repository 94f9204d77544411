#pragma once

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
  /// Megabytes of memory that no other program shares.
  int memory = 0;
};

[[nodiscard]] ResourceCount countResources(const Program& program);
/// Expects that the program holds hardly more than before: `slack` is what the system may keep for itself, also in
/// megabytes.
void expectNoLeak(const Program& program, const ResourceCount& before, int slack);

}  // namespace quillhue
