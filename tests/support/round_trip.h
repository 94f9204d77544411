#pragma once

#include <string>

#include "core/palette.h"
#include "formats/exports/export_format.h"
#include "formats/writers/palette_writer.h"

namespace quillhue {

/// Writes the palette, reads it with the reader of the same name, and compares as much as the format keeps. Returns a
/// description of the fault, or an empty text.
[[nodiscard]] std::string checkRoundTrip(const Palette& palette, const PaletteWriter& writer, PaletteEntry blank);

/// Does the same for a format that only the tool writes. A format without a reader has no fault.
[[nodiscard]] std::string checkRoundTrip(const Palette& palette, const ExportFormat& format);

/// Writes the palette by a standard writer and compares it with the standard reading.
[[nodiscard]] std::string checkStandardRoundTrip(const Palette& palette, const ExportFormat& format);

}  // namespace quillhue
