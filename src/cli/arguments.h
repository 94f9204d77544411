#pragma once

#include <optional>
#include <string_view>

#include "core/palette_entry.h"

namespace quillhue::cli {

/// "R,G,B", each 0..255; nothing when `text` is anything else.
[[nodiscard]] std::optional<PaletteEntry> parseColor(std::string_view text);

}  // namespace quillhue::cli
