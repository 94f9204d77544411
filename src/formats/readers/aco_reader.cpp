#include <optional>

#include "formats/readers/palette_readers.h"
#include "formats/swatch_color.h"

// Layout: "Photoshop File Formats" by Adobe, section "Color swatches": big-endian words. A color is its
// model and four components; in version 2 a name follows each color.

namespace quillhue {

namespace {

constexpr std::uint64_t kColors = 4;
constexpr std::uint64_t kColorLength = 10;
constexpr std::uint16_t kWithNames = 2;

enum Model : std::uint16_t { kRgb = 0, kHsb = 1, kCmyk = 2, kLab = 7, kGray = 8 };

std::optional<PaletteEntry> readColor(ByteSource& source, std::uint64_t offset) {
  const auto word = [&](std::uint64_t index) { return source.u16be(offset + 2 + 2 * index); };
  const auto share = [&](std::uint64_t index) { return word(index) / 65535.0; };
  const auto signedWord = [&](std::uint64_t index) { return static_cast<std::int16_t>(word(index)); };
  const auto highByte = [&](std::uint64_t index) { return static_cast<std::uint8_t>(word(index) >> 8); };
  switch (source.u16be(offset)) {
    case kRgb:
      return PaletteEntry{highByte(0), highByte(1), highByte(2)};
    case kHsb:
      return swatch::fromHsb(share(0), share(1), share(2));
    case kCmyk:
      // In this format 0 is full ink.
      return swatch::fromCmyk(1 - share(0), 1 - share(1), 1 - share(2), 1 - share(3));
    case kLab:
      return swatch::fromLab(word(0) / 100.0, signedWord(1) / 100.0, signedWord(2) / 100.0);
    case kGray:
      return swatch::fromGray(word(0) / 10000.0);
    default:
      return std::nullopt;
  }
}

bool matches(const ReaderInput& input) {
  const std::uint16_t version = input.source.u16be(0);
  return nameEndsWith(input.name, ".ACO") && (version == 1 || version == kWithNames);
}

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  const bool hasNames = source.u16be(0) == kWithNames;
  const std::uint16_t count = source.u16be(2);
  ListedEntries entries;
  std::uint64_t offset = kColors;
  for (std::uint16_t i = 0; i < count && !entries.isCut(); ++i) {
    if (offset + kColorLength > source.size()) {
      return std::unexpected(Failure::acoInvalid);
    }
    const auto color = readColor(source, offset);
    if (!color) {
      return std::unexpected(Failure::swatchModelUnsupported);
    }
    entries.add(*color);
    offset += kColorLength;
    if (hasNames) {
      offset += 4 + 2 * std::uint64_t{source.u32be(offset)};
    }
  }
  return entries.result(Failure::acoInvalid);
}

}  // namespace

constinit const PaletteReader kAcoReader{
    "aco", "Photoshop swatches", "name ends with .ACO, first word 1 or 2", "*.aco", matches, read};

}  // namespace quillhue
