#include "formats/standard/gif_file.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "formats/image_limits.h"
#include "formats/readers/palette_reader.h"
#include "formats/standard/lzw_decoder.h"

namespace quillhue {

namespace {

constexpr std::uint64_t kScreenFlags = 10;
constexpr std::uint64_t kBlocks = 13;
constexpr std::uint8_t kExtension = 0x21;
constexpr std::uint8_t kImage = 0x2C;
constexpr std::uint8_t kGraphicControl = 0xF9;
constexpr std::uint64_t kImageDescriptor = 10;

std::int32_t tableEntries(std::uint8_t flags) { return (flags & 0x80) == 0 ? 0 : 2 << (flags & 7); }

// Returns the end of the data blocks that begin at `offset`: each is a length and its bytes, and the last one is empty.
std::uint64_t behindDataBlocks(ByteSource& source, std::uint64_t offset) {
  while (source.u8(offset) != 0) {
    offset += 1 + std::uint64_t{source.u8(offset)};
  }
  return offset + 1;
}

void readDescriptor(ByteSource& source, std::uint64_t at, GifFrame& frame) {
  frame.left = source.u16le(at + 1);
  frame.top = source.u16le(at + 3);
  frame.width = source.u16le(at + 5);
  frame.height = source.u16le(at + 7);
  const std::uint8_t flags = source.u8(at + 9);
  frame.isInterlaced = (flags & 0x40) != 0;
  frame.localTable = at + kImageDescriptor;
  frame.localEntries = tableEntries(flags);
  frame.pixels = frame.localTable + 3 * static_cast<std::uint64_t>(frame.localEntries);
  frame.canvasWidth = std::max(frame.canvasWidth, frame.left + frame.width);
  frame.canvasHeight = std::max(frame.canvasHeight, frame.top + frame.height);
}

// Returns the row of an interlaced image that is stored at `place`: first every eighth row, then the rows halfway
// between them, and so on.
std::int32_t interlacedRow(std::int32_t place, std::int32_t height) {
  struct Pass {
    std::int32_t first;
    std::int32_t step;
  };
  for (const auto& [first, step] : {Pass{0, 8}, {4, 8}, {2, 4}, {1, 2}}) {
    const std::int32_t rows = std::max(0, (height - first + step - 1) / step);
    if (place < rows) {
      return first + place * step;
    }
    place -= rows;
  }
  return height - 1;
}

}  // namespace

GifFrame readGifFrame(ByteSource& source) {
  GifFrame frame;
  frame.canvasWidth = source.u16le(6);
  frame.canvasHeight = source.u16le(8);
  frame.globalTable = kBlocks;
  frame.globalEntries = tableEntries(source.u8(kScreenFlags));
  std::uint64_t at = kBlocks + 3 * static_cast<std::uint64_t>(frame.globalEntries);
  while (at < source.size() && source.u8(at) == kExtension) {
    const std::uint64_t data = at + 3;
    if (source.u8(at + 1) == kGraphicControl && (source.u8(data) & 1) != 0) {
      frame.transparentIndex = source.u8(data + 3);
    }
    at = behindDataBlocks(source, at + 2);
  }
  if (source.u8(at) == kImage) {
    readDescriptor(source, at, frame);
  }
  return frame;
}

ImageResult readGifPixels(ByteSource& source, const GifFrame& frame, PaletteEntry blank) {
  const bool isLocal = frame.localEntries > 0;
  const std::int32_t entries = isLocal ? frame.localEntries : frame.globalEntries;
  if (frame.pixels == 0 || frame.pixels >= source.size()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  if (entries == 0) {
    return std::unexpected(Failure::gifNoGlobalPalette);
  }
  if (frame.width == 0 || frame.height == 0) {
    return std::unexpected(Failure::imageTooSmall);
  }
  if (const auto failure = checkImageSize(frame.canvasWidth, frame.canvasHeight)) {
    return std::unexpected(*failure);
  }
  const Palette table = readTriples(source, isLocal ? frame.localTable : frame.globalTable, entries);
  Palette palette = resizedCopy(table, 256, {});
  if (frame.transparentIndex) {
    palette.setEntry(*frame.transparentIndex, blank);
  }
  WorkImage image(frame.canvasWidth, frame.canvasHeight, std::move(palette));
  if (const auto index = frame.transparentIndex) {
    std::ranges::fill(image.pixels(), *index);
    image.transparentIndexes().set(*index);
  }
  LzwDecoder decoder(source, frame.pixels);
  for (std::int32_t place = 0; place < frame.height; ++place) {
    const std::int32_t y = frame.top + (frame.isInterlaced ? interlacedRow(place, frame.height) : place);
    const auto row = image.row(y).subspan(static_cast<std::size_t>(frame.left), static_cast<std::size_t>(frame.width));
    if (!decoder.read(row)) {
      return std::unexpected(Failure::pictureDamaged);
    }
  }
  return image;
}

}  // namespace quillhue
