#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

constexpr std::uint8_t kIndexedImage = 2;
constexpr std::uint8_t kColorMapProperty = 1;

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "gimp"); }

ReadResult read(const ReaderInput& input) {
  // The low bytes of two big-endian values: the image's base type and the type of its first property.
  if (input.source.u8(25) != kIndexedImage) {
    return std::unexpected(Failure::xcfNotIndexed);
  }
  if (input.source.u8(29) != kColorMapProperty) {
    return std::unexpected(Failure::xcfNoColorMap);
  }
  const std::int32_t count = input.source.u16be(36);
  if (count < 1 || count > kMaxPaletteSize) {
    return std::unexpected(Failure::xcfInvalidCount);
  }
  return FilePalette{readTriples(input.source, 38, count), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kXcfReader{"xcf", "XCF image", "signature gimp", "*.xcf", matches, read};

}  // namespace quillhue
