#pragma once

#include <cstdint>

namespace quillhue {

/// The keys that move the current entry over the grid.
enum class GridKey : std::uint8_t { left, right, up, down, home, end, pageUp, pageDown };

/// Returns the new current entry, 0 .. paletteSize - 1. Left and right continue in the previous or next row. Up and
/// down do nothing if there is no entry in that direction. Page Up and Page Down go to the top and bottom of the
/// column. If `current` is not an entry, End goes to the last entry and every other key to the first.
[[nodiscard]] std::int32_t nextEntry(GridKey key, std::int32_t current, std::int32_t paletteSize, std::int32_t columns);

}  // namespace quillhue
