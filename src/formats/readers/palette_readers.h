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

/// All readers, in the order in which they are asked whether they know a file: signatures first, then extensions.
/// kAseReader and those after it come last, so that they only get files that no other reader takes.
[[nodiscard]] std::span<const PaletteReader* const> paletteReaders();

/// The first reader that matches; null when none does.
[[nodiscard]] const PaletteReader* findPaletteReader(const ReaderInput& input);

/// Finds the reader and reads with it. Refuses with the reader's failure, with unrecognisedType when no reader matches,
/// or with couldNotOpen when the bytes could not be had from the medium.
[[nodiscard]] ReadResult readPalette(const ReaderInput& input);

}  // namespace quillhue
