#pragma once

#include <cstdint>
#include <expected>
#include <functional>
#include <span>

#include "core/palette_entry.h"
#include "formats/byte_source.h"
#include "formats/failure.h"

namespace quillhue {

/// A pixel: blue in the low byte, then green and red, then the fourth byte of a 32-bit pixel (0 for other depths).
using ColorWord = std::uint32_t;

[[nodiscard]] constexpr PaletteEntry colorOf(ColorWord word) {
  return {static_cast<std::uint8_t>(word >> 16), static_cast<std::uint8_t>(word >> 8), static_cast<std::uint8_t>(word)};
}

/// Widens a field of five bits to a byte. kept on purpose: by repeating the low three bits, not the high ones.
[[nodiscard]] constexpr ColorWord widenField(std::uint32_t field) { return field * 8 + field % 8; }

/// The pixels of a Windows Bitmap with 16, 24 or 32 bits a pixel. Keeps no pixels: each visit reads them from the
/// source, which must outlive this object.
class TrueColorBitmap {
 public:
  /// Reads the header of a bitmap with one of these three depths. Refuses an image without a pixel in the file with
  /// imageTooSmall, and one of more than 262144 pixels a side or 268435456 in all with imageTooLarge.
  [[nodiscard]] static std::expected<TrueColorBitmap, Failure> open(ByteSource& source);

  /// Counts the pixels of all rows that are at least partly in the file.
  [[nodiscard]] std::uint64_t pixelCount() const { return rows_ * width_; }
  [[nodiscard]] ByteSource& source() const { return *source_; }

  /// Passes all pixels to `visit` in the file's order, some rows at a time. The missing part of a truncated row is
  /// zero.
  void forEachBlock(const std::function<void(std::span<const ColorWord>)>& visit) const;

 private:
  TrueColorBitmap() = default;

  ByteSource* source_ = nullptr;
  std::uint64_t offset_ = 0;
  std::uint64_t width_ = 0;
  std::uint64_t rows_ = 0;
  std::uint64_t bytesPerPixel_ = 0;
  // Bytes from row to row, including padding.
  std::uint64_t stride_ = 0;
};

}  // namespace quillhue
