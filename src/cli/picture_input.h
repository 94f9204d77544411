#pragma once

#include <span>

#include "formats/readers/palette_reader.h"

namespace quillhue::cli {

/// Returns readers for the images without a palette that only the tool reads. They return true-color images and are
/// tried for files that all other readers refuse.
[[nodiscard]] std::span<const PaletteReader> pictureReaders();

/// Returns the reader for such an image, or null.
[[nodiscard]] const PaletteReader* findPictureReader(const ReaderInput& input);

}  // namespace quillhue::cli
