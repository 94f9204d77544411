#include "formats/bitmap_writer.h"

#include <algorithm>
#include <utility>

#include "formats/byte_sink.h"
#include "formats/writers/palette_writer.h"

namespace quillhue {

namespace {

constexpr std::size_t kHeaders = 14 + 40;

// Two pixels a byte, the left one in the high half.
void packRow(std::span<const std::uint8_t> row, std::span<std::uint8_t> packed) {
  for (std::size_t x = 0; x < row.size(); ++x) {
    const auto index = static_cast<std::uint32_t>(row[x] & 15);
    packed[x / 2] = static_cast<std::uint8_t>(packed[x / 2] | (x % 2 == 0 ? index << 4 : index));
  }
}

}  // namespace

std::vector<std::uint8_t> composeBitmap(const IndexedPixels& pixels, const Palette& palette, PaletteEntry blank) {
  const bool isPacked = palette.getSize() <= 16;
  const std::int32_t entries = isPacked ? 16 : 256;
  const auto width = static_cast<std::size_t>(pixels.width);
  const auto height = static_cast<std::size_t>(pixels.height);
  const std::size_t stored = paddedRowLength(pixels.width);
  const std::size_t stride = isPacked ? (width + 7) / 2 / 4 * 4 : stored;
  const std::size_t offset = kHeaders + 4 * static_cast<std::size_t>(entries);
  ByteSink sink;
  sink.extend(offset + stride * height);
  sink.text(0, "BM");
  sink.u32le(2, static_cast<std::uint32_t>(sink.size()));
  sink.u32le(10, static_cast<std::uint32_t>(offset));
  sink.u32le(14, 40);
  sink.u32le(18, static_cast<std::uint32_t>(pixels.width));
  sink.u32le(22, static_cast<std::uint32_t>(pixels.height));
  sink.u16le(26, 1);
  sink.u16le(28, isPacked ? 4 : 8);
  for (std::int32_t i = 0; i < entries; ++i) {
    const PaletteEntry color = entryOr(palette, i, blank);
    sink.bytes(kHeaders + 4 * static_cast<std::size_t>(i), {color.blue, color.green, color.red, 0});
  }
  std::vector<std::uint8_t> file = sink.take();
  for (std::size_t y = 0; y < height; ++y) {
    const auto row = pixels.rows.subspan(y * stored, stored);
    const auto out = std::span(file).subspan(offset + (height - 1 - y) * stride, stride);
    if (isPacked) {
      packRow(row.first(width), out);
    } else {
      std::ranges::copy(row, out.begin());
    }
  }
  return file;
}

}  // namespace quillhue
