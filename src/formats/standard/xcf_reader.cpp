#include <algorithm>
#include <optional>
#include <utility>

#include "formats/standard/standard_formats.h"

// Layout: GIMP's developer documentation (devel-docs), "XCF": big-endian words. The version, the image's size and type
// and, from version 4 on, its precision come first. The properties follow: each has a type, a length and data.

namespace quillhue {

namespace {

constexpr std::uint64_t kBaseType = 22;
constexpr std::uint32_t kIndexedImage = 2;
constexpr std::uint32_t kEndOfProperties = 0;
constexpr std::uint32_t kColorMap = 1;
constexpr std::uint64_t kPropertyHeader = 8;

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "gimp"); }

// "v011" at 9; version 0 is called "file".
std::uint32_t versionOf(ByteSource& source) {
  if (source.u8(9) != 'v') {
    return 0;
  }
  std::uint32_t version = 0;
  for (std::uint64_t offset = 10; offset < 13; ++offset) {
    version = version * 10 + source.u8(offset) - '0';
  }
  return version;
}

// Returns the offset of the color map's data.
std::optional<std::uint64_t> findColorMap(ByteSource& source, std::uint64_t property) {
  while (property < source.size() && source.u32be(property) != kEndOfProperties) {
    if (source.u32be(property) == kColorMap) {
      return property + kPropertyHeader;
    }
    property += kPropertyHeader + source.u32be(property + 4);
  }
  return std::nullopt;
}

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  if (source.u32be(kBaseType) != kIndexedImage) {
    return std::unexpected(Failure::xcfNotIndexed);
  }
  const auto map = findColorMap(source, versionOf(source) < 4 ? kBaseType + 4 : kBaseType + 8);
  if (!map) {
    return std::unexpected(Failure::xcfNoColorMap);
  }
  const std::uint32_t count = source.u32be(*map);
  if (count < 1 || count > 256) {
    return std::unexpected(Failure::xcfInvalidCount);
  }
  if (*map + 4 + 3 * std::uint64_t{count} > source.size()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return FilePalette{readTriples(source, *map + 4, static_cast<std::int32_t>(count)), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kStandardXcfReader{"xcf", "XCF image", "signature gimp", "*.xcf", matches, read};

}  // namespace quillhue
