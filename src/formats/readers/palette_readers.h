#pragma once

#include <span>

#include "formats/readers/palette_reader.h"

namespace quillhue {

extern const PaletteReader kJascReader;
extern const PaletteReader kGimpReader;
extern const PaletteReader kXcfReader;
extern const PaletteReader kRiffReader;
extern const PaletteReader kColorTableReader;
extern const PaletteReader kCmpReader;
extern const PaletteReader kBitmapReader;
extern const PaletteReader kGifReader;
extern const PaletteReader kClipboardReader;
extern const PaletteReader kPngReader;
extern const PaletteReader kMsDrawReader;
extern const PaletteReader kLbmReader;
extern const PaletteReader kDrHaloReader;
extern const PaletteReader kPcxReader;
extern const PaletteReader kTiffReader;
extern const PaletteReader kAaAnimationReader;
extern const PaletteReader kAaPaletteReader;
extern const PaletteReader kMapReader;
extern const PaletteReader kCsvReader;
extern const PaletteReader kTgaReader;
extern const PaletteReader kActReader;
extern const PaletteReader kRawReader;
extern const PaletteReader kAseReader;
extern const PaletteReader kAcoReader;
extern const PaletteReader kPaintNetReader;
extern const PaletteReader kHexReader;

/// Returns all readers in the order in which they are tried: signatures first, then extensions. kAseReader and those
/// after it come last, so that they only get files that no other reader takes.
[[nodiscard]] std::span<const PaletteReader* const> paletteReaders();

/// Returns the first reader that matches, or null.
[[nodiscard]] const PaletteReader* findPaletteReader(const ReaderInput& input);

/// Reads a palette with the first reader that matches. Refuses with that reader's failure, with unrecognisedType when
/// no reader matches, or with couldNotOpen when the medium fails.
[[nodiscard]] ReadResult readPalette(const ReaderInput& input);

}  // namespace quillhue
