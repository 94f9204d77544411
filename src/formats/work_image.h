#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/palette.h"
#include "core/zeroed_memory.h"

namespace quillhue {

/// The length of a row of one byte a pixel as Windows has it: the width rounded up to a multiple of 4.
[[nodiscard]] constexpr std::size_t paddedRowLength(std::int32_t width) {
  return (static_cast<std::size_t>(width) + 3) / 4 * 4;
}

/// An image that is to be remapped, within the limits of image_limits.h. Rows stand from top to bottom without padding.
/// A pixel is an index into the image's own palette, or without one three bytes: blue, green, red.
class WorkImage {
 public:
  /// All pixels are zero. Throws std::bad_alloc.
  WorkImage(std::int32_t width, std::int32_t height, std::optional<Palette> palette);

  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }
  /// Of 16 or 256 entries.
  [[nodiscard]] const std::optional<Palette>& palette() const { return palette_; }
  [[nodiscard]] std::size_t bytesPerPixel() const { return palette_ ? 1 : 3; }

  [[nodiscard]] std::span<std::uint8_t> pixels() { return pixels_.all(); }
  [[nodiscard]] std::span<const std::uint8_t> pixels() const { return pixels_.all(); }
  [[nodiscard]] std::span<std::uint8_t> row(std::int32_t y) { return pixels().subspan(rowStart(y), rowLength()); }
  [[nodiscard]] std::span<const std::uint8_t> row(std::int32_t y) const {
    return pixels().subspan(rowStart(y), rowLength());
  }

 private:
  [[nodiscard]] std::size_t rowLength() const { return static_cast<std::size_t>(width_) * bytesPerPixel(); }
  [[nodiscard]] std::size_t rowStart(std::int32_t y) const { return static_cast<std::size_t>(y) * rowLength(); }

  std::int32_t width_;
  std::int32_t height_;
  std::optional<Palette> palette_;
  ZeroedMemory<std::uint8_t> pixels_;
};

}  // namespace quillhue
