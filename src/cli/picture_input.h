#pragma once

#include <span>

#include "core/palette_entry.h"
#include "formats/images/image_loader.h"
#include "formats/readers/palette_reader.h"

namespace quillhue::cli {

/// The pictures without a palette that the tool reads beside the bitmaps, as images of true colors. They are asked for
/// files that all other readers refuse.
[[nodiscard]] std::span<const PaletteReader> pictureReaders();

/// The reader of such a picture; null when the file is none.
[[nodiscard]] const PaletteReader* findPictureReader(const ReaderInput& input);

/// Loads a picture, with or without a palette, and blends what is transparent with `blank`. Refuses with
/// unrecognisedType when the file is none.
[[nodiscard]] ImageResult loadPicture(ByteSource& source, PaletteEntry blank);

}  // namespace quillhue::cli
