#include "formats/bitmap_writer.h"

#include <algorithm>
#include <span>
#include <utility>

#include "formats/bitmap_layout.h"
#include "formats/byte_sink.h"
#include "formats/work_image.h"
#include "formats/writers/palette_writer.h"

namespace quillhue {

namespace {

using namespace bitmap_layout;

constexpr std::size_t kHeaders = kFileHeader + kInfoHeader;
// A palette of at most this size gets 4 bits a pixel.
constexpr std::size_t kPackedColors = 16;

// Packs two pixels a byte, the left one in the high half. `row` has an even length.
void packRow(std::span<const std::uint8_t> row, std::span<std::uint8_t> packed) {
  for (std::size_t x = 0; x < row.size() / 2; ++x) {
    packed[x] = static_cast<std::uint8_t>(row[2 * x] << 4 | (row[2 * x + 1] & 15));
  }
}

}  // namespace

std::array<PaletteEntry, kBitmapColors> bitmapColors(std::span<const PaletteEntry> palette, PaletteEntry blank) {
  const std::size_t entries = palette.size() <= kPackedColors ? kPackedColors : kBitmapColors;
  std::array<PaletteEntry, kBitmapColors> colors{};
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const std::size_t stored = i % entries;
    colors[i] = stored < palette.size() ? palette[stored] : blank;
  }
  return colors;
}

std::vector<std::uint8_t> composeBitmap(const IndexedPixels& pixels, const Palette& palette, PaletteEntry blank) {
  const bool isPacked = palette.getSize() <= static_cast<std::int32_t>(kPackedColors);
  const std::size_t entries = isPacked ? kPackedColors : kBitmapColors;
  const auto width = static_cast<std::size_t>(pixels.width);
  const auto height = static_cast<std::size_t>(pixels.height);
  const std::size_t stored = paddedRowLength(pixels.width);
  const std::size_t stride = isPacked ? (width + 7) / 2 / 4 * 4 : stored;
  const std::size_t offset = kHeaders + 4 * entries;
  const std::size_t size = offset + stride * height;
  ByteSink sink;
  sink.text(0, "BM");
  sink.u32le(kFileSize, static_cast<std::uint32_t>(size));
  sink.u32le(kPixelOffset, static_cast<std::uint32_t>(offset));
  sink.u32le(kFileHeader + kHeaderSize, kInfoHeader);
  sink.u32le(kFileHeader + kWidth, static_cast<std::uint32_t>(pixels.width));
  sink.u32le(kFileHeader + kHeight, static_cast<std::uint32_t>(pixels.height));
  sink.u16le(kFileHeader + kPlanes, 1);
  sink.u16le(kFileHeader + kBitCount, isPacked ? 4 : 8);
  const auto colors = bitmapColors(entriesOf(palette), blank);
  for (std::size_t i = 0; i < entries; ++i) {
    sink.bytes(kHeaders + 4 * i, {colors[i].blue, colors[i].green, colors[i].red, 0});
  }
  // Rows are appended, because space filled with zeros first would be written twice.
  std::vector<std::uint8_t> file = sink.take();
  file.reserve(size);
  for (std::size_t y = height; y-- > 0;) {
    const auto row = pixels.rows.subspan(y * stored, stored);
    if (isPacked) {
      const std::size_t start = file.size();
      file.resize(start + stride);
      packRow(row, std::span(file).subspan(start));
    } else {
      file.insert(file.end(), row.begin(), row.end());
    }
  }
  return file;
}

}  // namespace quillhue
