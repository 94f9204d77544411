#pragma once

#include <cstdint>
#include <expected>
#include <vector>

#include "core/palette.h"
#include "formats/failure.h"

namespace quillhue::cli {

/// Layout of a palette drawn as an image of equal squares.
struct SwatchLayout {
  std::int32_t columns = 16;
  /// Width and height of a square in pixels.
  std::int32_t cell = 16;

  static constexpr std::int32_t kMaxColumns = 256;
  static constexpr std::int32_t kMaxCell = 256;
};

/// Returns a PNG file with one square for each entry, in rows from left to right, and with the entries as its palette.
/// The palette has 1 to 256 entries. The rest of the last row has the color of the last entry. Throws std::bad_alloc.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composeSwatches(const Palette& palette,
                                                                                const SwatchLayout& layout);

}  // namespace quillhue::cli
