#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <span>

#include "core/palette_entry.h"
#include "formats/byte_source.h"
#include "formats/failure.h"

namespace quillhue {

/// A pixel: blue in the low byte, then green, red, and the fourth byte of a 32-bit pixel (0 for all others).
using ColorWord = std::uint32_t;

[[nodiscard]] constexpr PaletteEntry colorOf(ColorWord word) {
  return {static_cast<std::uint8_t>(word >> 16), static_cast<std::uint8_t>(word >> 8), static_cast<std::uint8_t>(word)};
}

/// A field of five bits as a whole byte. kept on purpose: widened by repeating its low three bits.
[[nodiscard]] constexpr ColorWord widenField(std::uint32_t field) { return field * 8 + field % 8; }

/// The pixels of a Windows Bitmap of 16, 24 or 32 bits a pixel. Holds no pixels itself: they are read from the source,
/// which outlives it, whenever they are asked for.
class TrueColorBitmap {
 public:
  /// Reads the header of a bitmap whose bits per pixel are one of the three. Refuses with imageTooSmall an image
  /// without a pixel in the file, with imageTooLarge one past 262144 pixels a side or 268435456 in all.
  [[nodiscard]] static std::expected<TrueColorBitmap, Failure> open(ByteSource& source);

  /// Pixels of the rows that the file holds at least in part.
  [[nodiscard]] std::uint64_t pixelCount() const { return rows_ * width_; }
  [[nodiscard]] ByteSource& source() const { return *source_; }

  /// Hands over all pixels in the file's order, some rows at a time. What a truncated row lacks is zero.
  void forEachBlock(const std::function<void(std::span<const ColorWord>)>& visit) const;

 private:
  TrueColorBitmap() = default;

  ByteSource* source_ = nullptr;
  std::uint64_t offset_ = 0;
  std::uint64_t width_ = 0;
  std::uint64_t rows_ = 0;
  std::uint64_t bytesPerPixel_ = 0;
  // From row to row, padding included.
  std::uint64_t stride_ = 0;
};

}  // namespace quillhue
