#include <algorithm>

#include "formats/standard/standard_formats.h"

// Layout: "Multimedia Programming Interface and Data Specifications 1.0" (1991), "Palette file format": a RIFF form
// PAL, whose chunk "data" is a LOGPALETTE: version, number of entries, and the entries as red, green, blue and flags.

namespace quillhue {

namespace {

constexpr std::uint64_t kFirstChunk = 12;
constexpr std::uint64_t kChunkHeader = 8;

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "RIFF"); }

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  if (!matchTag(source, 8, "PAL ")) {
    return std::unexpected(Failure::riffInvalid);
  }
  std::uint64_t chunk = kFirstChunk;
  while (chunk < source.size() && !matchTag(source, chunk, "data")) {
    const std::uint64_t length = source.u32le(chunk + 4);
    chunk += kChunkHeader + length + length % 2;
  }
  const std::uint64_t data = chunk + kChunkHeader;
  const std::int32_t count = source.u16le(data + 2);
  if (count < 1 || data + 4 + 4 * static_cast<std::uint64_t>(count) > source.size()) {
    return std::unexpected(Failure::riffInvalid);
  }
  return FilePalette{readQuads(source, data + 4, std::min(count, kMaxPaletteSize)), palette_format::kRiff,
                     count > kMaxPaletteSize};
}

}  // namespace

constinit const PaletteReader kStandardRiffReader{"riff", "RIFF palette", "signature RIFF", "*.pal", matches, read};

}  // namespace quillhue
