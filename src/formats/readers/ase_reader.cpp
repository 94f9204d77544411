#include <array>
#include <bit>
#include <string_view>

#include "formats/readers/palette_readers.h"
#include "formats/swatch_color.h"

// Layout: "Adobe Swatch Exchange" of selapa.net/swatches/colors/fileformats.php: big-endian blocks of a type, a length
// and data. A color block contains its name, its model, the components as 32-bit floats, and its kind.

namespace quillhue {

namespace {

constexpr std::uint64_t kBlocks = 12;
constexpr std::uint64_t kBlockHeader = 6;
constexpr std::uint16_t kColorBlock = 1;
constexpr std::uint64_t kTagLength = 4;

float floatAt(ByteSource& source, std::uint64_t offset) { return std::bit_cast<float>(source.u32be(offset)); }

struct Model {
  std::string_view tag;
  std::uint64_t components;
  PaletteEntry (*convert)(ByteSource& source, std::uint64_t offset);
};

constexpr std::array kModels{
    Model{"RGB ", 3,
          [](ByteSource& source, std::uint64_t at) {
            return swatch::fromRgb(floatAt(source, at), floatAt(source, at + 4), floatAt(source, at + 8));
          }},
    Model{"CMYK", 4,
          [](ByteSource& source, std::uint64_t at) {
            return swatch::fromCmyk(floatAt(source, at), floatAt(source, at + 4), floatAt(source, at + 8),
                                    floatAt(source, at + 12));
          }},
    // In this format the lightness is 0..1.
    Model{"LAB ", 3,
          [](ByteSource& source, std::uint64_t at) {
            return swatch::fromLab(100 * floatAt(source, at), floatAt(source, at + 4), floatAt(source, at + 8));
          }},
    Model{"Gray", 1, [](ByteSource& source, std::uint64_t at) { return swatch::fromGray(floatAt(source, at)); }},
};

std::expected<PaletteEntry, Failure> readColor(ByteSource& source, std::uint64_t data, std::uint64_t end) {
  // The name is stored as the number of its UTF-16 units, including the closing zero, and the units.
  const std::uint64_t tag = data + 2 + 2 * std::uint64_t{source.u16be(data)};
  for (const Model& model : kModels) {
    if (matchTag(source, tag, model.tag)) {
      const std::uint64_t components = tag + kTagLength;
      if (components + 4 * model.components > end) {
        return std::unexpected(Failure::aseInvalid);
      }
      return model.convert(source, components);
    }
  }
  return std::unexpected(tag + kTagLength > end ? Failure::aseInvalid : Failure::swatchModelUnsupported);
}

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "ASEF"); }

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  const std::uint32_t blocks = source.u32be(8);
  ListedEntries entries;
  std::uint64_t block = kBlocks;
  for (std::uint32_t i = 0; i < blocks && !entries.isCut(); ++i) {
    const std::uint64_t data = block + kBlockHeader;
    const std::uint64_t end = data + source.u32be(block + 2);
    if (end > source.size()) {
      return std::unexpected(Failure::aseInvalid);
    }
    if (source.u16be(block) == kColorBlock) {
      const auto color = readColor(source, data, end);
      if (!color) {
        return std::unexpected(color.error());
      }
      entries.add(*color);
    }
    block = end;
  }
  return entries.result(Failure::aseInvalid);
}

}  // namespace

constinit const PaletteReader kAseReader{"ase", "Swatch Exchange", "signature ASEF", "*.ase", matches, read};

}  // namespace quillhue
