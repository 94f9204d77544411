#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/palette.h"
#include "core/zeroed_memory.h"

namespace quillhue {

/// Returns the length of a Windows bitmap row with one byte a pixel: the width rounded up to a multiple of 4.
[[nodiscard]] constexpr std::size_t paddedRowLength(std::int32_t width) {
  return (static_cast<std::size_t>(width) + 3) / 4 * 4;
}

/// An image to be remapped, within the limits of image_limits.h. Rows run from top to bottom without padding. A pixel
/// is an index into the image's own palette or, without a palette, three bytes: blue, green, red.
class WorkImage {
 public:
  /// Sets all pixels to zero. Throws std::bad_alloc.
  WorkImage(std::int32_t width, std::int32_t height, std::optional<Palette> palette);

  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }
  /// Has 16 or 256 entries.
  [[nodiscard]] const std::optional<Palette>& palette() const { return palette_; }
  [[nodiscard]] std::size_t bytesPerPixel() const { return palette_ ? 1 : 3; }

  [[nodiscard]] std::span<std::uint8_t> pixels() { return pixels_.all(); }
  [[nodiscard]] std::span<const std::uint8_t> pixels() const { return pixels_.all(); }
  [[nodiscard]] std::span<std::uint8_t> row(std::int32_t y) { return pixels().subspan(rowStart(y), rowLength()); }
  [[nodiscard]] std::span<const std::uint8_t> row(std::int32_t y) const {
    return pixels().subspan(rowStart(y), rowLength());
  }

  /// Returns whether a pixel is transparent, that is, less than half covered. It still has a color, for uses that
  /// ignore transparency.
  [[nodiscard]] bool isTransparent(std::int32_t y, std::size_t x) const {
    return palette_ ? transparentIndexes_[row(y)[x]] : !transparent_.all().empty() && transparentRow(y)[x] != 0;
  }
  /// Returns false if certainly no pixel is transparent.
  [[nodiscard]] bool hasTransparency() const { return transparentIndexes_.any() || !transparent_.all().empty(); }
  /// Indexes of transparent pixels. Only for an image with a palette.
  [[nodiscard]] std::bitset<256>& transparentIndexes() { return transparentIndexes_; }
  [[nodiscard]] const std::bitset<256>& transparentIndexes() const { return transparentIndexes_; }
  /// One byte a pixel: 1 if it is transparent, otherwise 0. Only for an image without a palette, after addTransparency.
  [[nodiscard]] std::span<std::uint8_t> transparentRow(std::int32_t y) {
    return transparent_.all().subspan(at(y), columns());
  }
  [[nodiscard]] std::span<const std::uint8_t> transparentRow(std::int32_t y) const {
    return transparent_.all().subspan(at(y), columns());
  }
  /// Makes room for transparent pixels; at first none is transparent. Throws std::bad_alloc.
  void addTransparency() { transparent_ = ZeroedMemory<std::uint8_t>(at(height_)); }

 private:
  [[nodiscard]] std::size_t columns() const { return static_cast<std::size_t>(width_); }
  // Returns the index of a row's first pixel.
  [[nodiscard]] std::size_t at(std::int32_t y) const { return static_cast<std::size_t>(y) * columns(); }
  [[nodiscard]] std::size_t rowLength() const { return columns() * bytesPerPixel(); }
  [[nodiscard]] std::size_t rowStart(std::int32_t y) const { return at(y) * bytesPerPixel(); }

  std::int32_t width_;
  std::int32_t height_;
  std::optional<Palette> palette_;
  ZeroedMemory<std::uint8_t> pixels_;
  std::bitset<256> transparentIndexes_;
  ZeroedMemory<std::uint8_t> transparent_;
};

}  // namespace quillhue
