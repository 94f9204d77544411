#pragma once

#include <cstdint>
#include <span>

#include "core/document.h"

namespace quillhue {

/// The commands that change the selection. Each is one undo step, also when it changes nothing. Those that compare
/// with the current entry do nothing at all when there is no such entry.

void selectAll(PaletteDocument& document);
void selectNone(PaletteDocument& document);
void invertSelection(PaletteDocument& document);
/// Selects these entries and no others. Indexes outside the palette are ignored.
void selectEntries(PaletteDocument& document, std::span<const std::int32_t> indexes);

/// Select the entries of exactly the current entry's color, those with a greater sum of red, green and blue, and
/// those with a smaller one. All other entries are deselected.
void selectMatches(PaletteDocument& document, std::int32_t current);
void selectBrighter(PaletteDocument& document, std::int32_t current);
void selectDarker(PaletteDocument& document, std::int32_t current);

/// Selects every entry that has the color of an earlier one.
void selectRedundant(PaletteDocument& document);

}  // namespace quillhue
