#include "cli/swatches.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "formats/work_image.h"
#include "pictures/png_encoder.h"

namespace quillhue::cli {

std::expected<std::vector<std::uint8_t>, Failure> composeSwatches(const Palette& palette, const SwatchLayout& layout) {
  const auto entries = static_cast<std::size_t>(palette.getSize());
  const auto cell = static_cast<std::size_t>(layout.cell);
  const std::size_t columns = std::min(static_cast<std::size_t>(layout.columns), entries);
  const auto width = static_cast<std::int32_t>(columns * cell);
  const auto height = static_cast<std::int32_t>((entries + columns - 1) / columns * cell);
  const std::size_t stride = paddedRowLength(width);
  std::vector<std::uint8_t> rows(stride * static_cast<std::size_t>(height));
  for (std::size_t start = 0, y = 0; start < rows.size(); start += stride, ++y) {
    for (std::size_t column = 0; column < columns; ++column) {
      const auto entry = static_cast<std::uint8_t>(std::min(y / cell * columns + column, entries - 1));
      std::ranges::fill(std::span(rows).subspan(start + column * cell, cell), entry);
    }
  }
  const std::vector<PaletteEntry> colors = entriesOf(palette);
  return composePng({{width, height, rows}, colors, {}});
}

}  // namespace quillhue::cli
