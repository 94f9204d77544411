#pragma once

#include <string>

#include "core/palette.h"
#include "formats/exports/export_format.h"
#include "formats/writers/palette_writer.h"

namespace quillhue {

/// Writes the palette, reads it with the reader of the same name and compares as far as the format goes. Empty when all
/// is as it should be, and otherwise what is not.
[[nodiscard]] std::string checkRoundTrip(const Palette& palette, const PaletteWriter& writer, PaletteEntry blank);

/// The same for a format that only the tool writes. Nothing is wrong with one that has no reader.
[[nodiscard]] std::string checkRoundTrip(const Palette& palette, const ExportFormat& format);

/// Writes the palette by a standard writer and compares it with the standard reading.
[[nodiscard]] std::string checkStandardRoundTrip(const Palette& palette, const ExportFormat& format);

}  // namespace quillhue
