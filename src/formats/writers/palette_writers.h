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

/// Returns all writers in the order of the file types in the Save As dialog; format f is at index f - 1.
[[nodiscard]] std::span<const PaletteWriter* const> paletteWriters();

/// Returns the writer of the format, or null.
[[nodiscard]] const PaletteWriter* findPaletteWriter(PaletteFormat format);

/// Returns the bytes of a palette file. Refuses with mightHoldMore a format that includes kMayHoldMore, and with one of
/// the too-large failures a palette that does not fit into the format. A format without a writer gives an empty file.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composePaletteFile(const Palette& palette,
                                                                                   PaletteFormat format,
                                                                                   PaletteEntry blank);

}  // namespace quillhue
