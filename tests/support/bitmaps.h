#pragma once

#include <cstdint>
#include <vector>

#include "formats/byte_sink.h"
#include "formats/true_color_bitmap.h"
#include "support/palettes.h"

namespace quillhue {

/// Returns a Windows Bitmap of 16, 24 or 32 bits a pixel. Stores that many low bits of each word.
inline Bytes bitmapOf(std::uint32_t width, std::uint8_t bits, const std::vector<ColorWord>& words) {
  const std::size_t bytesPerPixel = bits / 8;
  const std::size_t stride = (width * bytesPerPixel + 3) / 4 * 4;
  const std::size_t height = words.size() / width;
  ByteSink sink;
  sink.text(0, "BM");
  sink.u8(10, 54);
  sink.u8(14, 40);
  sink.u32le(18, width);
  sink.u32le(22, static_cast<std::uint32_t>(height));
  sink.u8(28, bits);
  for (std::size_t i = 0; i < words.size(); ++i) {
    for (std::size_t byte = 0; byte < bytesPerPixel; ++byte) {
      sink.u8(54 + i / width * stride + i % width * bytesPerPixel + byte,
              static_cast<std::uint8_t>(words[i] >> (8 * byte)));
    }
  }
  sink.extend(54 + height * stride);
  return sink.take();
}

}  // namespace quillhue
