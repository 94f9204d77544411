#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "core/palette_entry.h"
#include "core/zeroed_memory.h"
#include "formats/work_image.h"

namespace quillhue {

/// The most entries of a palette that an image of one byte a pixel can use.
inline constexpr std::int32_t kMaxUsedEntries = 256;

/// An image of one byte a pixel in the colors of a palette. A moved-from image may only be assigned or destroyed.
class RemappedImage {
 public:
  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }
  /// The palette's first kMaxUsedEntries entries as they were when the image was made.
  [[nodiscard]] const std::vector<PaletteEntry>& colors() const { return colors_; }

  /// Rows of indexes from top to bottom, each of the paddedRowLength with zeros behind the pixels.
  [[nodiscard]] std::span<const std::uint8_t> rows() const { return rows_.all(); }
  /// The pixels of a row, without its padding.
  [[nodiscard]] std::span<std::uint8_t> row(std::int32_t y) {
    return rows_.all().subspan(static_cast<std::size_t>(y) * paddedRowLength(width_), static_cast<std::size_t>(width_));
  }

  /// Becomes an image of this size and these colors, at most kMaxUsedEntries. Its pixels stay as they are when the size
  /// does, and are zero otherwise. Throws std::bad_alloc.
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
