#include "ui/logic/clipboard_image.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>

#include "formats/bitmap_layout.h"
#include "formats/bitmap_writer.h"
#include "formats/byte_sink.h"

namespace quillhue {

namespace {

using namespace bitmap_layout;

std::vector<std::uint8_t> withoutFileHeader(std::vector<std::uint8_t> file) {
  file.erase(file.begin(), file.begin() + std::ptrdiff_t{kFileHeader});
  return file;
}

std::vector<std::uint8_t> trueColorBitmap(const WorkImage& image) {
  const std::size_t stride = paddedRowLength(image.width() * 3);
  ByteSink sink;
  sink.u32le(kHeaderSize, kInfoHeader);
  sink.u32le(kWidth, static_cast<std::uint32_t>(image.width()));
  sink.u32le(kHeight, static_cast<std::uint32_t>(image.height()));
  sink.u16le(kPlanes, 1);
  sink.u16le(kBitCount, 24);
  sink.extend(kInfoHeader);
  std::vector<std::uint8_t> block = sink.take();
  block.reserve(kInfoHeader + stride * static_cast<std::size_t>(image.height()));
  for (std::int32_t y = image.height(); y-- > 0;) {
    const auto row = image.row(y);
    block.insert(block.end(), row.begin(), row.end());
    block.resize(block.size() + stride - row.size());
  }
  return block;
}

}  // namespace

std::vector<std::uint8_t> clipboardBitmap(const RemappedImage& image, PaletteEntry blank) {
  return withoutFileHeader(
      composeBitmap({image.width(), image.height(), image.rows()}, paletteOf(image.colors()), blank));
}

std::vector<std::uint8_t> clipboardBitmap(const WorkImage& image, PaletteEntry blank) {
  const std::optional<Palette>& palette = image.palette();
  if (!palette) {
    return trueColorBitmap(image);
  }
  const std::size_t stride = paddedRowLength(image.width());
  std::vector<std::uint8_t> rows(stride * static_cast<std::size_t>(image.height()));
  for (std::int32_t y = 0; y < image.height(); ++y) {
    std::ranges::copy(image.row(y), std::span(rows).subspan(stride * static_cast<std::size_t>(y)).begin());
  }
  return withoutFileHeader(composeBitmap({image.width(), image.height(), rows}, *palette, blank));
}

}  // namespace quillhue
