#pragma once

#include <cstdint>
#include <span>

#include "core/document.h"

namespace quillhue {

/// Commands that add, remove and move whole entries. Each is one undo step. A moved entry keeps its selected flag.
/// Added entries are selected if all others are. The caller checks the indexes and that 1 to kMaxPaletteSize entries
/// result.

/// Replaces the entries by those at these indexes, in this order.
void arrangeEntries(PaletteDocument& document, std::span<const std::int32_t> order);

/// Removes these entries, but not all of them.
void deleteEntries(PaletteDocument& document, std::span<const std::int32_t> indexes);

/// Adds entries before the entry `position`. If `position` is the palette's size, adds them at the end.
void insertEntries(PaletteDocument& document, std::int32_t position, std::span<const PaletteEntry> colors);

/// Moves these entries, each listed once, so that they follow each other and the first becomes the entry `position`.
void moveEntries(PaletteDocument& document, std::span<const std::int32_t> indexes, std::int32_t position);

/// Exchanges two entries.
void swapEntries(PaletteDocument& document, std::int32_t one, std::int32_t other);

/// Removes each entry whose color occurs in an earlier entry.
void removeDuplicates(PaletteDocument& document);

}  // namespace quillhue
