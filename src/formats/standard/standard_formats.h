#pragma once

#include <span>

#include "formats/exports/export_format.h"
#include "formats/images/image_loader.h"
#include "formats/readers/palette_reader.h"

/// Formats by their published descriptions, each of which its file names. They are used only when somebody asks for
/// them: the editor and the tool otherwise read by the rules of palette_readers.h and image_loaders.h. A reader
/// or writer has the name of the one that it stands for.
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
  /// Loads a file that matches. A pixel of which less than a half is covered is transparent, and blended with `blank`.
  /// Refuses files that end before their pixels do.
  ImageResult (*load)(ByteSource& source, PaletteEntry blank);
};

extern const StandardLoader kStandardBitmapLoader;
extern const StandardLoader kStandardClipboardLoader;
extern const StandardLoader kStandardPcxLoader;
extern const StandardLoader kStandardGifLoader;

/// All readers, in the order in which they are asked whether they know a file.
[[nodiscard]] std::span<const PaletteReader* const> standardReaders();

/// The first of them that matches; null when none does.
[[nodiscard]] const PaletteReader* findStandardReader(const ReaderInput& input);

/// Returns the loader of images that matches, or null. At most one matches a file.
[[nodiscard]] const StandardLoader* findStandardLoader(ByteSource& source);

/// Loads an image by the loader here that matches, and other files as loadImage does.
[[nodiscard]] ImageResult loadStandardImage(ByteSource& source, PaletteEntry blank);

extern const ExportFormat kStandardJascWriter;
extern const ExportFormat kStandardGimpWriter;

/// All writers.
[[nodiscard]] std::span<const ExportFormat* const> standardWriters();

}  // namespace quillhue
