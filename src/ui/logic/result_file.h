#pragma once

#include <cstdint>
#include <expected>
#include <string_view>
#include <vector>

#include "core/palette.h"
#include "formats/failure.h"
#include "remap/remapped_image.h"

namespace quillhue {

/// Formats in which the tab "Use Palette" saves a result.
enum class ResultFormat : std::uint8_t { bitmap, png };

/// Returns the format of a file. The extensions .png, .bmp and .dib decide; for any other name it is `chosen`, the type
/// chosen in the dialog.
[[nodiscard]] ResultFormat resultFormat(std::wstring_view name, ResultFormat chosen);

/// Returns the file's bytes, in the palette's colors. `blank` fills missing colors of a bitmap's color table. Fails
/// with couldNotCreate if the system can't write PNG. Throws std::bad_alloc.
[[nodiscard]] std::expected<std::vector<std::uint8_t>, Failure> composeResult(const RemappedImage& result,
                                                                              const Palette& palette,
                                                                              PaletteEntry blank, ResultFormat format);

}  // namespace quillhue
