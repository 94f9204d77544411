#include "formats/notes/format_notes.h"
#include "formats/standard/pcx_file.h"

namespace quillhue {

namespace {

std::optional<ReadingNote> compare(ByteSource& source) {
  const auto header = readPcxHeader(source);
  if (!header) {
    return std::nullopt;
  }
  const unsigned depth = header->bits * header->planes;
  if (depth != 8 && depth != 24) {
    return ReadingNote{textOfParts("the pixels have a depth of ", depth, "; read with a depth of 8"), true};
  }
  if (source.u16le(4) != 0 || source.u16le(6) != 0) {
    return ReadingNote{textOfParts("the header has ", header->width, " by ", header->height, " pixels; read as ",
                                   source.u16le(8) + 1, " by ", source.u16le(10) + 1),
                       true};
  }
  if (header->bytesPerRow != static_cast<std::uint32_t>(header->width)) {
    return ReadingNote{
        textOfParts("the rows have ", header->bytesPerRow, " bytes; read as rows of ", header->width, " bytes"), true};
  }
  if (header->hasPalette() && !readPcxPalette(source, *header)) {
    return ReadingNote{"the file has no palette behind its pixels", false};
  }
  return std::nullopt;
}

}  // namespace

constinit const ImageNotes kPcxImageNotes{isPcxFile, compare, [](ByteSource& /*source*/) { return std::string(); }};

}  // namespace quillhue
