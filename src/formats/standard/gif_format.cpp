#include "formats/standard/gif_file.h"
#include "formats/standard/standard_formats.h"

namespace quillhue {

namespace {

bool isGifFile(ByteSource& source) { return matchTag(source, 0, "GIF8"); }

bool matches(const ReaderInput& input) { return isGifFile(input.source); }

ReadResult read(const ReaderInput& input) {
  const GifFrame frame = readGifFrame(input.source);
  const bool isGlobal = frame.globalEntries > 0;
  const std::int32_t entries = isGlobal ? frame.globalEntries : frame.localEntries;
  if (entries == 0) {
    return std::unexpected(Failure::gifNoGlobalPalette);
  }
  const std::uint64_t table = isGlobal ? frame.globalTable : frame.localTable;
  if (table + 3 * static_cast<std::uint64_t>(entries) > input.source.size()) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return FilePalette{readTriples(input.source, table, entries)};
}

ImageResult load(ByteSource& source, PaletteEntry blank) { return readGifPixels(source, readGifFrame(source), blank); }

}  // namespace

constinit const PaletteReader kStandardGifReader{"gif", "GIF image", "signature GIF8", "*.gif", matches, read};
constinit const StandardLoader kStandardGifLoader{isGifFile, load};

}  // namespace quillhue
