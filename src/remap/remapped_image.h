#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "formats/work_image.h"

namespace quillhue {

/// Maximum number of palette entries that an image with one byte per pixel can use.
inline constexpr std::int32_t kMaxUsedEntries = 256;

/// An image with one byte per pixel and the colors of a palette. A moved-from image may only be assigned or destroyed.
class RemappedImage {
 public:
  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }
  /// Returns a copy of the palette's first kMaxUsedEntries entries, made when the image was remapped.
  [[nodiscard]] const std::vector<PaletteEntry>& colors() const { return colors_; }

  /// Returns the rows of indexes from top to bottom. Each is padded with zeros to paddedRowLength().
  [[nodiscard]] std::span<const std::uint8_t> rows() const { return rows_.all(); }
  /// Returns the pixels of a row without its padding.
  [[nodiscard]] std::span<std::uint8_t> row(std::int32_t y) {
    return rows_.all().subspan(static_cast<std::size_t>(y) * paddedRowLength(width_), static_cast<std::size_t>(width_));
  }

  /// Changes the size and the colors (at most kMaxUsedEntries). The pixels are kept if the size stays the same,
  /// otherwise they become zero. Throws std::bad_alloc.
  void prepare(std::int32_t width, std::int32_t height, std::span<const PaletteEntry> colors);
  /// Sets all pixels to 0.
  void clear();

 private:
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  ZeroedMemory<std::uint8_t> rows_;
  std::vector<PaletteEntry> colors_;
};

}  // namespace quillhue
