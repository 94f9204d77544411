#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "pictures/png_encoder.h"

namespace quillhue {

/// The rows of a PngImage as the file stores them before compression: the left pixel is in a byte's highest bits.
class PackedRows {
 public:
  explicit PackedRows(const PngImage& image);

  /// 1, 2, 4 or 8.
  [[nodiscard]] unsigned bitsPerPixel() const { return bits_; }
  /// In bytes.
  [[nodiscard]] std::size_t rowLength() const { return packed_.size(); }
  /// Returns row `y`, valid until the next call.
  [[nodiscard]] std::span<std::uint8_t> row(std::int32_t y);

 private:
  const PngImage& image_;
  unsigned bits_;
  std::vector<std::uint8_t> packed_;
};

}  // namespace quillhue
