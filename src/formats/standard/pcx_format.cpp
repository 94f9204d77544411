#include <utility>

#include "formats/standard/pcx_file.h"
#include "formats/standard/standard_formats.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return isPcxFile(input.source); }

ReadResult read(const ReaderInput& input) {
  const auto header = readPcxHeader(input.source);
  if (!header) {
    return std::unexpected(header.error());
  }
  if (!header->hasPalette()) {
    auto image = readPcxPixels(input.source, *header);
    return image ? ReadResult(*std::move(image)) : std::unexpected(image.error());
  }
  auto palette = readPcxPalette(input.source, *header);
  return palette ? ReadResult(FilePalette{*std::move(palette)}) : std::unexpected(palette.error());
}

ImageResult load(ByteSource& source, PaletteEntry /*blank*/) {
  const auto header = readPcxHeader(source);
  return header ? readPcxPixels(source, *header) : std::unexpected(header.error());
}

}  // namespace

constinit const PaletteReader kStandardPcxReader{"pcx", "PCX image", "byte 0A", "*.pcx", matches, read};
constinit const StandardLoader kStandardPcxLoader{isPcxFile, load};

}  // namespace quillhue
