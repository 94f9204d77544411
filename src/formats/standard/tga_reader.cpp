#include <algorithm>
#include <array>
#include <utility>

#include "formats/standard/color_field.h"
#include "formats/standard/standard_formats.h"

// Layout: "TGA File Format 2.0" by Truevision (1991): a header of 18 bytes, the image identifier, and the
// color map, whose first entry is the color of the index at 3. Values are little-endian.

namespace quillhue {

namespace {

constexpr std::uint64_t kHeader = 18;

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "TGA"); }

// Reads an entry of 15 or 16 bits (five each for red, green and blue), or one of blue, green, red and possibly an
// attribute.
PaletteEntry readEntry(ByteSource& source, std::uint64_t offset, std::uint64_t bytes) {
  if (bytes > 2) {
    return {source.u8(offset + 2), source.u8(offset + 1), source.u8(offset)};
  }
  const std::uint32_t word = source.u16le(offset);
  return {ColorField(0x7C00).valueIn(word), ColorField(0x03E0).valueIn(word), ColorField(0x001F).valueIn(word)};
}

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  constexpr std::array<std::uint8_t, 4> kDepths{15, 16, 24, 32};
  const std::uint8_t bits = source.u8(7);
  const std::int32_t first = source.u16le(3);
  const std::int32_t count = source.u16le(5);
  if (source.u8(1) != 1 || count == 0 || first >= kMaxPaletteSize ||
      std::ranges::find(kDepths, bits) == kDepths.end()) {
    return std::unexpected(Failure::tgaNot8Bit);
  }
  const std::uint64_t bytes = (bits + 7U) / 8;
  std::uint64_t offset = kHeader + source.u8(0);
  if (offset + bytes * static_cast<std::uint64_t>(count) > source.size()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  const std::int32_t size = std::min(first + count, kMaxPaletteSize);
  Palette palette = createPalette(size);
  for (std::int32_t i = first; i < size; ++i, offset += bytes) {
    palette.setEntry(i, readEntry(source, offset, bytes));
  }
  return FilePalette{std::move(palette), palette_format::kNone, first + count > kMaxPaletteSize};
}

}  // namespace

constinit const PaletteReader kStandardTgaReader{"tga", "TGA image", "name ends with TGA", "*.tga", matches, read};

}  // namespace quillhue
