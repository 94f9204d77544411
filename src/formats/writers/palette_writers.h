#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string_view>
#include <vector>

#include "formats/writers/palette_writer.h"

namespace quillhue {

extern const PaletteWriter kActWriter;
extern const PaletteWriter kCmpWriter;
extern const PaletteWriter kColorTableWriter;
extern const PaletteWriter kCsvWriter;
extern const PaletteWriter kDrHaloWriter;
extern const PaletteWriter kGimpWriter;
extern const PaletteWriter kJascWriter;
extern const PaletteWriter kMapWriter;
extern const PaletteWriter kMsDrawWriter;
extern const PaletteWriter kRiffWriter;
extern const PaletteWriter kClipboardWriter;

/// All writers, in the order of the Save As dialog's file types: that of format f stands at f - 1.
[[nodiscard]] std::span<const PaletteWriter* const> paletteWriters();

/// The writer of the format; null when there is none.
[[nodiscard]] const PaletteWriter* findPaletteWriter(PaletteFormat format);

/// The bytes of a palette file. Refuses with mightHoldMore a format with kMayHoldMore in it, and with one of the
/// too-large failures a palette that the format can't hold. For a format without a writer the file is empty.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composePaletteFile(const Palette& palette,
                                                                                   PaletteFormat format,
                                                                                   PaletteEntry blank);

}  // namespace quillhue
