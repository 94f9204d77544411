#include "cli/picture_input.h"

#include <algorithm>
#include <array>

#include "pictures/picture_file.h"

namespace quillhue::cli {

namespace {

template <const PictureKind& kind>
PaletteReader readerOf() {
  return {kind.name,
          kind.title,
          kind.recognisedBy,
          kind.patterns,
          [](const ReaderInput& input) { return findPictureKind(input.source) == &kind; },
          [](const ReaderInput& input) -> ReadResult { return decodeFile(input.source, {}, kind.decode); }};
}

}  // namespace

std::span<const PaletteReader> pictureReaders() {
  static const std::array kReaders{readerOf<kPngPicture>(), readerOf<kJpegPicture>(), readerOf<kPnmPicture>()};
  return kReaders;
}

const PaletteReader* findPictureReader(const ReaderInput& input) {
  const auto readers = pictureReaders();
  const auto found = std::ranges::find_if(readers, [&](const PaletteReader& reader) { return reader.matches(input); });
  return found == readers.end() ? nullptr : &*found;
}

}  // namespace quillhue::cli
