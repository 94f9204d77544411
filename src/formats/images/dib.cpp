#include "formats/images/dib.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>
#include <vector>

#include "formats/bitmap_layout.h"
#include "formats/image_limits.h"
#include "formats/readers/palette_reader.h"
#include "formats/true_color_bitmap.h"

namespace quillhue {

namespace {

using Bytes = std::span<const std::uint8_t>;

// Converts a row of the file to a row of the image.
using DecodeRow = void (*)(Bytes stored, std::span<std::uint8_t> row);

void decode4(Bytes stored, std::span<std::uint8_t> row) {
  for (std::size_t x = 0; x < row.size(); ++x) {
    row[x] = x % 2 == 0 ? stored[x / 2] >> 4 : stored[x / 2] & 15;
  }
}

void decode16(Bytes stored, std::span<std::uint8_t> row) {
  for (std::size_t x = 0; x < row.size() / 3; ++x) {
    const auto pixel = static_cast<std::uint32_t>(stored[2 * x] | stored[2 * x + 1] << 8);
    for (std::size_t field = 0; field < 3; ++field) {
      row[3 * x + field] = static_cast<std::uint8_t>(widenField(pixel >> (5 * field) & 31));
    }
  }
}

void decode32(Bytes stored, std::span<std::uint8_t> row) {
  for (std::size_t x = 0; x < row.size() / 3; ++x) {
    std::ranges::copy(stored.subspan(4 * x, 3), row.subspan(3 * x).begin());
  }
}

// Widens a field of a pixel to a byte; the largest field becomes 255.
std::uint8_t fieldOf(std::uint32_t pixel, std::uint32_t mask) {
  constexpr std::uint32_t kFiveBits = 31;
  if (mask == 0) {
    return 0;
  }
  const int shift = std::countr_zero(mask);
  const std::uint64_t most = mask >> shift;
  const std::uint32_t value = (pixel & mask) >> shift;
  return static_cast<std::uint8_t>(most == kFiveBits ? widenField(value)
                                                     : (value * std::uint64_t{255} + most / 2) / most);
}

void decodeMasked(Bytes stored, std::span<std::uint8_t> row, const BitMasks& masks, std::size_t pixelBytes) {
  for (std::size_t x = 0; x < row.size() / 3; ++x) {
    std::uint32_t pixel = 0;
    for (std::size_t i = pixelBytes; i-- > 0;) {
      pixel = pixel << 8 | stored[pixelBytes * x + i];
    }
    for (std::size_t field = 0; field < masks.size(); ++field) {
      row[3 * x + field] = fieldOf(pixel, masks[field]);
    }
  }
}

struct Depth {
  std::uint32_t bits;
  // Size of the palette; 0 without one.
  std::int32_t entries;
  // Null if the file stores rows as the image does.
  DecodeRow decode;
};

constexpr std::array<Depth, 6> kDepths{
    // kept on purpose: depth 0 counts as 4 bits a pixel.
    {{0, 16, decode4}, {4, 16, decode4}, {8, 256, nullptr}, {16, 0, decode16}, {24, 0, nullptr}, {32, 0, decode32}}};

}  // namespace

ImageResult loadDib(ByteSource& source, const DibLayout& layout, Failure unsupportedDepth) {
  const auto* const depth =
      std::ranges::find(kDepths, source.u8(layout.header + bitmap_layout::kBitCount), &Depth::bits);
  if (depth == kDepths.end()) {
    return std::unexpected(unsupportedDepth);
  }
  const auto width = static_cast<std::int32_t>(source.u32le(layout.header + bitmap_layout::kWidth));
  const auto height = static_cast<std::int32_t>(source.u32le(layout.header + bitmap_layout::kHeight));
  if (const auto failure = checkImageSize(width, height)) {
    return std::unexpected(*failure);
  }
  std::optional<Palette> palette;
  if (depth->entries > 0) {
    palette = blueFirst(readQuads(source, layout.palette, depth->entries));
  }
  WorkImage image(width, height, std::move(palette));
  const std::uint64_t pixels = layout.palette + 4 * static_cast<std::uint64_t>(depth->entries);
  const std::uint64_t bits = std::max<std::uint64_t>(depth->bits, 4);
  std::vector<std::uint8_t> stored(static_cast<std::size_t>((static_cast<std::uint64_t>(width) * bits + 31) / 32 * 4));
  for (std::int32_t y = 0; y < height; ++y) {
    const std::uint64_t offset = pixels + static_cast<std::uint64_t>(y) * stored.size();
    if (offset >= source.size()) {
      break;
    }
    const auto row = image.row(height - 1 - y);
    if (depth->decode == nullptr) {
      source.read(offset, row);
    } else {
      source.read(offset, stored);
      if (layout.masks) {
        decodeMasked(stored, row, *layout.masks, depth->bits / 8);
      } else {
        depth->decode(stored, row);
      }
    }
  }
  return image;
}

}  // namespace quillhue
