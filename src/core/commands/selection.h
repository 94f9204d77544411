#pragma once

#include <cstdint>
#include <span>

#include "core/document.h"

namespace quillhue {

/// Commands that change the selection. Each is one undo step, even if it changes nothing. Commands that compare with
/// the current entry do nothing at all without one.

void selectAll(PaletteDocument& document);
void selectNone(PaletteDocument& document);
void invertSelection(PaletteDocument& document);
/// Selects these entries and deselects all others. Ignores indexes outside the palette.
void selectEntries(PaletteDocument& document, std::span<const std::int32_t> indexes);

/// Select the entries that have exactly the current entry's color, a greater sum of red, green and blue, or a smaller
/// sum. All other entries are deselected.
void selectMatches(PaletteDocument& document, std::int32_t current);
void selectBrighter(PaletteDocument& document, std::int32_t current);
void selectDarker(PaletteDocument& document, std::int32_t current);

/// Selects every entry whose color occurs in an earlier entry. All other entries are deselected.
void selectRedundant(PaletteDocument& document);

}  // namespace quillhue
