#pragma once

#include <cstdint>

namespace quillhue {

/// The keys that move the current entry over the grid.
enum class GridKey : std::uint8_t { left, right, up, down, home, end, pageUp, pageDown };

/// The entry that becomes the current one, 0 .. paletteSize - 1. Left and right go on in the rows beside; up and down
/// stay where there is no entry; a page is the whole grid, so its keys lead to the ends of the column. Without a
/// current entry (any index that is none) the end key leads to the last entry and every other one to the first.
[[nodiscard]] std::int32_t nextEntry(GridKey key, std::int32_t current, std::int32_t paletteSize, std::int32_t columns);

}  // namespace quillhue
