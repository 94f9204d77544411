#include "formats/readers/palette_readers.h"

#include <algorithm>
#include <array>

namespace quillhue {

namespace {

constexpr std::array kReaders{
    &kJascReader,     &kGimpReader, &kXcfReader,       &kRiffReader,        &kColorTableReader, &kCmpReader,
    &kBitmapReader,   &kGifReader,  &kClipboardReader, &kPngReader,         &kMsDrawReader,     &kLbmReader,
    &kDrHaloReader,   &kPcxReader,  &kTiffReader,      &kAaAnimationReader, &kAaPaletteReader,  &kMapReader,
    &kCsvReader,      &kTgaReader,  &kActReader,       &kRawReader,         &kAseReader,        &kAcoReader,
    &kPaintNetReader, &kHexReader,
};

}  // namespace

std::span<const PaletteReader* const> paletteReaders() { return kReaders; }

const PaletteReader* findPaletteReader(const ReaderInput& input) {
  const auto found =
      std::ranges::find_if(kReaders, [&](const PaletteReader* reader) { return reader->matches(input); });
  return found == kReaders.end() ? nullptr : *found;
}

ReadResult readPalette(const ReaderInput& input) {
  const PaletteReader* const reader = findPaletteReader(input);
  ReadResult result = reader == nullptr ? std::unexpected(Failure::unrecognisedType) : reader->read(input);
  if (input.source.failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  return result;
}

}  // namespace quillhue
