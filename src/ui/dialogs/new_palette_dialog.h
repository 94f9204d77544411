#pragma once

#include <optional>

#include "core/new_palette.h"

namespace quillhue {

struct AppSettings;
class DialogOwner;
class Messages;

/// The dialog for the size of a new or resized palette, and for a new one's Windows colors and levels. The fields that
/// the user has accepted; nothing when it is cancelled.
[[nodiscard]] std::optional<NewPaletteFields> askNewPalette(const DialogOwner& owner, AppSettings& settings,
                                                            Messages& messages, NewPaletteKind kind);

}  // namespace quillhue
