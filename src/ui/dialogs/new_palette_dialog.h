#pragma once

#include <optional>

#include "core/new_palette.h"

namespace quillhue {

class MainWindow;

/// The dialog for the size of a new or resized palette, and for a new one's Windows colors and levels. The fields that
/// the user has accepted; nothing when it is cancelled.
[[nodiscard]] std::optional<NewPaletteFields> askNewPalette(const MainWindow& owner, NewPaletteKind kind);

}  // namespace quillhue
