#pragma once

#include <span>

#include "formats/exports/export_format.h"
#include "formats/images/image_loader.h"
#include "formats/readers/palette_reader.h"

/// Readers, loaders and writers that follow the published descriptions of the formats. Each file names its description.
/// They are used only on request; otherwise the editor and the tool read by the rules of palette_readers.h and
/// image_loaders.h. A reader or writer has the name of the default one that it replaces.
namespace quillhue {

extern const PaletteReader kStandardJascReader;
extern const PaletteReader kStandardGimpReader;
extern const PaletteReader kStandardXcfReader;
extern const PaletteReader kStandardRiffReader;
extern const PaletteReader kStandardBitmapReader;
extern const PaletteReader kStandardGifReader;
extern const PaletteReader kStandardPcxReader;
extern const PaletteReader kStandardCsvReader;
extern const PaletteReader kStandardTgaReader;

/// Loading takes at most this many bytes of memory per pixel, plus kMaxLoaderMemory, and reads each byte of the file at
/// most kMaxReaderPasses times. The time is proportional to the pixels and the length of the file.
inline constexpr std::size_t kMaxStandardPixelBytes = 4;

/// One layout of image files.
struct StandardLoader {
  bool (*matches)(ByteSource& source);
  /// Loads a file that matches. A pixel that is less than half opaque is transparent and blended with `blank`. Refuses
  /// files that end before their pixels do.
  ImageResult (*load)(ByteSource& source, PaletteEntry blank);
};

extern const StandardLoader kStandardBitmapLoader;
extern const StandardLoader kStandardClipboardLoader;
extern const StandardLoader kStandardPcxLoader;
extern const StandardLoader kStandardGifLoader;

/// Returns all readers in the order in which they are tried.
[[nodiscard]] std::span<const PaletteReader* const> standardReaders();

/// Returns the first reader that matches, or null.
[[nodiscard]] const PaletteReader* findStandardReader(const ReaderInput& input);

/// Returns the image loader that matches, or null. At most one matches a file.
[[nodiscard]] const StandardLoader* findStandardLoader(ByteSource& source);

/// Loads an image with the loader that matches. Loads other files as loadImage does.
[[nodiscard]] ImageResult loadStandardImage(ByteSource& source, PaletteEntry blank);

extern const ExportFormat kStandardJascWriter;
extern const ExportFormat kStandardGimpWriter;

/// Returns all writers.
[[nodiscard]] std::span<const ExportFormat* const> standardWriters();

}  // namespace quillhue
