#pragma once

#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The system's palettes of colors.

/// At most 65535 entries. Null when the system refuses, as it does without entries.
[[nodiscard]] LogicalPalette createLogicalPalette(std::span<const PaletteEntry> entries);

/// The first kMaxPaletteSize entries; none of what is no palette.
[[nodiscard]] std::vector<PaletteEntry> entriesOf(HPALETTE palette);

}  // namespace quillhue
