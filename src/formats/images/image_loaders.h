#pragma once

#include <span>
#include <vector>

#include "formats/images/image_loader.h"

namespace quillhue {

extern const ImageLoader kBitmapLoader;
extern const ImageLoader kClipboardLoader;
extern const ImageLoader kLbmLoader;
extern const ImageLoader kPcxLoader;

/// Returns all loaders in the order in which they are tried.
[[nodiscard]] std::span<const ImageLoader* const> imageLoaders();

/// Loads an image file with the first loader that matches. Refuses a file that no loader recognises, that is invalid,
/// or that does not fit into memory.
[[nodiscard]] ImageResult loadImage(ByteSource& source);

/// Loads a device-independent bitmap from the clipboard (CF_DIB). Its palette starts 40 bytes after the start of the
/// header; the pixels follow. With bit fields (compression 3) the three masks are in place of the palette, and the
/// pixels follow the masks or the header, whichever ends later.
[[nodiscard]] ImageResult loadClipboardImage(std::vector<std::uint8_t> block);

}  // namespace quillhue
