#include <algorithm>
#include <optional>
#include <utility>

#include "formats/readers/palette_readers.h"

// Layout: TIFF revision 6.0, section 2 (structure) and section 5 (palette-color images).

namespace quillhue {

namespace {

constexpr std::uint16_t kBitsPerSample = 258;
constexpr std::uint16_t kPhotometricInterpretation = 262;
constexpr std::uint16_t kColorMap = 320;
constexpr std::uint16_t kPaletteColor = 3;
constexpr std::uint8_t kMostBits = 10;
constexpr std::uint64_t kFieldSize = 12;

// Reads values in the file's own byte order.
class TiffValues {
 public:
  explicit TiffValues(ByteSource& source) : source_(source), bigEndian_(source.u8(0) == 'M') {}

  [[nodiscard]] std::uint64_t size() const { return source_.size(); }
  [[nodiscard]] std::uint16_t u16(std::uint64_t offset) const {
    return bigEndian_ ? source_.u16be(offset) : source_.u16le(offset);
  }
  [[nodiscard]] std::uint32_t u32(std::uint64_t offset) const {
    return bigEndian_ ? source_.u32be(offset) : source_.u32le(offset);
  }
  // Returns the offset of the high byte of the 16-bit value at `offset`.
  [[nodiscard]] std::uint64_t highByte(std::uint64_t offset) const { return bigEndian_ ? offset : offset + 1; }

 private:
  ByteSource& source_;
  bool bigEndian_;
};

struct Directory {
  // Negative until the image is known to use a palette.
  std::int32_t colors = -1;
  std::optional<std::uint64_t> colorMap;
};

std::optional<Directory> readDirectory(const TiffValues& values) {
  const std::uint64_t start = values.u32(4);
  // Bytes past the end of the file read as zeros, which are no field, so the loop can stop there.
  const std::uint64_t end = std::min(start + 2 + values.u16(start) * kFieldSize, values.size());
  Directory directory;
  for (std::uint64_t field = start + 2; field < end; field += kFieldSize) {
    const std::uint64_t value = field + 8;
    switch (values.u16(field)) {
      case kBitsPerSample: {
        const auto bits = static_cast<std::uint8_t>(values.u16(value));
        if (bits > kMostBits) {
          return std::nullopt;
        }
        directory.colors = directory.colors < 0 ? -(1 << bits) : 1 << bits;
        break;
      }
      case kPhotometricInterpretation:
        if (values.u16(value) == kPaletteColor) {
          directory.colors = -directory.colors;
        }
        break;
      case kColorMap:
        directory.colorMap = values.u32(value);
        break;
      default:
        break;
    }
  }
  return directory;
}

bool matches(const ReaderInput& input) {
  const std::uint32_t signature = input.source.u32be(0);
  return signature == 0x49492A00 || signature == 0x4D4D002A;
}

ReadResult read(const ReaderInput& input) {
  const TiffValues values(input.source);
  const auto directory = readDirectory(values);
  if (!directory || !directory->colorMap || directory->colors < 1 || directory->colors > kMaxPaletteSize) {
    return std::unexpected(Failure::tiffCorrupt);
  }
  // All red values, then all green, then all blue, 16 bits each. Only the high byte is used.
  const auto count = static_cast<std::size_t>(directory->colors);
  const auto map = input.source.bytes(values.highByte(*directory->colorMap), 6 * count);
  const auto component = [&](std::size_t index) { return map[2 * index]; };
  Palette palette = createPalette(directory->colors);
  for (std::size_t i = 0; i < count; ++i) {
    palette.setEntry(static_cast<std::int32_t>(i), {component(i), component(count + i), component(2 * count + i)});
  }
  return FilePalette{std::move(palette), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kTiffReader{"tiff",         "TIFF image", "signature 49 49 2A 00 or 4D 4D 00 2A",
                                          "*.tif;*.tiff", matches,      read};

}  // namespace quillhue
