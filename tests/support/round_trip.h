#pragma once

#include <string>

#include "core/palette.h"
#include "formats/writers/palette_writer.h"

namespace quillhue {

/// Writes the palette, reads it with the reader of the same name and compares as far as the format goes. Empty when all
/// is as it should be, and otherwise what is not.
[[nodiscard]] std::string checkRoundTrip(const Palette& palette, const PaletteWriter& writer, PaletteEntry blank);

}  // namespace quillhue
