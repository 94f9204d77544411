#pragma once

#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The system's logical palettes.

/// Creates a palette of 1 to 65535 entries. Returns null on failure, also if there are no entries.
[[nodiscard]] LogicalPalette createLogicalPalette(std::span<const PaletteEntry> entries);

/// Returns the first kMaxPaletteSize entries, or none if the handle is not a palette.
[[nodiscard]] std::vector<PaletteEntry> entriesOf(HPALETTE palette);

}  // namespace quillhue
