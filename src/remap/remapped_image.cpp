#include "remap/remapped_image.h"

#include <algorithm>

namespace quillhue {

void RemappedImage::prepare(std::int32_t width, std::int32_t height, std::span<const PaletteEntry> colors) {
  if (width != width_ || height != height_) {
    // Frees the old rows first, so that both need not fit into memory.
    rows_ = {};
    width_ = 0;
    height_ = 0;
    rows_ = ZeroedMemory<std::uint8_t>(paddedRowLength(width) * static_cast<std::size_t>(height));
    width_ = width;
    height_ = height;
  }
  colors_.assign(colors.begin(), colors.end());
}

void RemappedImage::clear() { std::ranges::fill(rows_.all(), std::uint8_t{0}); }

}  // namespace quillhue
