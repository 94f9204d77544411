#include "pictures/packed_rows.h"

#include <algorithm>

#include "formats/work_image.h"

namespace quillhue {

namespace {

unsigned bitsFor(std::size_t colors) {
  unsigned bits = 1;
  while (std::size_t{1} << bits < colors) {
    bits *= 2;
  }
  return bits;
}

}  // namespace

PackedRows::PackedRows(const PngImage& image)
    : image_(image),
      bits_(bitsFor(image.colors.size())),
      packed_((static_cast<std::size_t>(image.pixels.width) * bits_ + 7) / 8) {}

std::span<std::uint8_t> PackedRows::row(std::int32_t y) {
  const auto width = static_cast<std::size_t>(image_.pixels.width);
  const auto indexes =
      image_.pixels.rows.subspan(static_cast<std::size_t>(y) * paddedRowLength(image_.pixels.width), width);
  std::ranges::fill(packed_, std::uint8_t{0});
  const std::size_t pixelsPerByte = 8 / bits_;
  for (std::size_t x = 0; x < width; ++x) {
    const unsigned index = indexes[x] < image_.colors.size() ? indexes[x] : 0;
    const auto shift = static_cast<unsigned>(8 - bits_ - x % pixelsPerByte * bits_);
    std::uint8_t& byte = packed_[x / pixelsPerByte];
    byte = static_cast<std::uint8_t>(byte | index << shift);
  }
  return packed_;
}

}  // namespace quillhue
