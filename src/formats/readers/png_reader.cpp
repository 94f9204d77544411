#include <algorithm>

#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

constexpr std::uint8_t kIndexedColor = 3;

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "\x89PNG"); }

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  if (source.u8(25) != kIndexedColor) {
    return std::unexpected(Failure::pngNotIndexed);
  }
  const std::uint64_t tag = findTag(source, 27, "PLTE");
  if (tag >= source.size()) {
    return std::unexpected(Failure::pngNoPaletteChunk);
  }
  const std::uint32_t length = source.u32be(tag - 4);
  if (length < 3) {
    return std::unexpected(Failure::pngPaletteTooSmall);
  }
  const auto count = static_cast<std::int32_t>(std::min<std::uint32_t>(length / 3, kMaxPaletteSize));
  return FilePalette{readTriples(source, tag + 4, count), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kPngReader{"png", "PNG image", "signature 89 PNG", "*.png", matches, read};

}  // namespace quillhue
