#pragma once

#include <span>
#include <vector>

#include "formats/images/image_loader.h"

namespace quillhue {

extern const ImageLoader kBitmapLoader;
extern const ImageLoader kClipboardLoader;
extern const ImageLoader kLbmLoader;
extern const ImageLoader kPcxLoader;

/// All loaders, in the order in which a file is tried.
[[nodiscard]] std::span<const ImageLoader* const> imageLoaders();

/// Loads an image file by the first loader that matches. A file that no loader knows, that is not what it seems to
/// be, or that is too large for the memory is refused.
[[nodiscard]] ImageResult loadImage(ByteSource& source);

/// Loads a device-independent bitmap from the clipboard (CF_DIB): its header, its palette 40 bytes behind the header's
/// start, its pixels. With bit fields (compression 3) the three masks are there instead, and the pixels follow them or
/// the header, whichever ends later.
[[nodiscard]] ImageResult loadClipboardImage(std::vector<std::uint8_t> block);

}  // namespace quillhue
