#pragma once

#include <optional>
#include <string>

#include "formats/readers/palette_reader.h"

/// Compares the default reading of a file with what the file says by the published description of its format. Nothing
/// here changes how files are read.
namespace quillhue {

/// A difference between the default reading of a file and what the file says.
struct ReadingNote {
  /// Clauses without a capital and a full stop. Empty if the default reading refuses the file and no reason is known.
  std::string text;
  /// True if the readers and loaders of standard_formats.h read the file.
  bool standardReads = false;
};

/// Compares `reading`, the result of readPalette for `input`, with the standard reading. Returns nothing if the two
/// agree, if neither reads the file, or if the memory does not suffice for both. For an image of true colors, compares
/// only the header.
[[nodiscard]] std::optional<ReadingNote> notePaletteReading(const ReaderInput& input, const ReadResult& reading);

/// Does the same for the pixels of an image. `isLoaded` is true if loadImage loads it; then only the header is
/// compared. Throws std::bad_alloc.
[[nodiscard]] std::optional<ReadingNote> noteImageReading(ByteSource& source, bool isLoaded);

}  // namespace quillhue
