#pragma once

#include <optional>
#include <sstream>
#include <string>

#include "formats/notes/reading_note.h"

namespace quillhue {

/// Joins texts and numbers.
template <typename... Parts>
[[nodiscard]] std::string textOfParts(const Parts&... parts) {
  std::ostringstream text;
  (text << ... << parts);
  return text.str();
}

/// Explains why the default reading of a palette format differs from the standard one.
struct PaletteNotes {
  /// The name of the default reader.
  std::string_view reader;
  /// Returns a clause for a file whose two readings differ; empty if the numbers of entries say enough.
  std::string (*explain)(const ReaderInput& input);
};

extern const PaletteNotes kActNotes;
extern const PaletteNotes kCsvNotes;
extern const PaletteNotes kGifNotes;
extern const PaletteNotes kGimpNotes;
extern const PaletteNotes kJascNotes;
extern const PaletteNotes kMapNotes;
extern const PaletteNotes kTgaNotes;
extern const PaletteNotes kXcfNotes;

/// Compares the default reading of the pixels of an image format with its header.
struct ImageNotes {
  bool (*matches)(ByteSource& source);
  /// Compares a file that loadImage loads. Returns nothing if the two agree.
  std::optional<ReadingNote> (*compare)(ByteSource& source);
  /// Says why loadImage refuses a file that the standard loader loads; empty if the failure's text says it.
  std::string (*explainRefusal)(ByteSource& source);
};

extern const ImageNotes kBitmapImageNotes;
extern const ImageNotes kClipboardImageNotes;
extern const ImageNotes kPcxImageNotes;

/// Compares the color table of a Windows Bitmap, or the pixels of one that has none.
[[nodiscard]] std::optional<ReadingNote> noteBitmapPalette(ByteSource& source, const ReadResult& reading);

}  // namespace quillhue
