#pragma once

#include "core/palette_entry.h"

namespace quillhue {

/// What the user has chosen once and for all.
struct AppSettings {
  /// Fills the entries that growing a palette adds, and the unused ones of formats of a fixed size.
  PaletteEntry blank;
};

}  // namespace quillhue
