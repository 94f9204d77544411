#pragma once

#include <cstdint>
#include <expected>
#include <vector>

#include "core/palette.h"
#include "formats/failure.h"

namespace quillhue::cli {

/// How a palette is drawn as an image of equal squares.
struct SwatchLayout {
  std::int32_t columns = 16;
  /// Pixels a side.
  std::int32_t cell = 16;

  static constexpr std::int32_t kMaxColumns = 256;
  static constexpr std::int32_t kMaxCell = 256;
};

/// Returns a PNG file with a square for each entry, in rows from left to right, and the entries as its palette. For 1
/// to 256 entries. What the last row lacks has the color of the last entry. Throws std::bad_alloc.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composeSwatches(const Palette& palette,
                                                                                const SwatchLayout& layout);

}  // namespace quillhue::cli
