#pragma once

#include <cstdint>

#include "core/new_palette.h"

namespace quillhue {

/// Carries out the commands that need more than the open palette. The current screen implements it. By default the
/// editor's commands do nothing, because the intro screen has no document.
class CommandTarget {
 public:
  CommandTarget() = default;
  CommandTarget(const CommandTarget&) = delete;
  CommandTarget& operator=(const CommandTarget&) = delete;
  virtual ~CommandTarget() = default;

  virtual void newPalette(NewPaletteKind kind) = 0;
  /// Creates the system palette of a menu command.
  virtual void newSystemPalette(std::int32_t command) = 0;
  virtual void openPalette() = 0;
  virtual void exit() = 0;
  virtual void showReadMe() = 0;
  virtual void showAbout() = 0;

  virtual void savePalette() {}
  virtual void savePaletteAs() {}
  virtual void undo() {}
  virtual void redo() {}
  virtual void cut() {}
  virtual void copy() {}
  virtual void paste() {}
  virtual void clear() {}
  virtual void resizePalette() {}
  virtual void countColors() {}
  virtual void averageColor() {}
  virtual void editColor() {}
  virtual void nextTab() {}
  virtual void previousTab() {}
};

}  // namespace quillhue
