#pragma once

#include <optional>

#include "core/new_palette.h"

namespace quillhue {

struct AppSettings;
class DialogOwner;
class Messages;

/// Asks for the size of a new or resized palette, and for the Windows colors and levels of a new one. Returns the
/// fields that the user accepted, or nothing if the user cancels.
[[nodiscard]] std::optional<NewPaletteFields> askNewPalette(const DialogOwner& owner, AppSettings& settings,
                                                            Messages& messages, NewPaletteKind kind);

}  // namespace quillhue
