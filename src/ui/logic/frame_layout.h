#pragma once

#include <array>

#include "ui/logic/geometry.h"

namespace quillhue {

/// Layout of the main window: the active screen with its tab control, and the status bar at the bottom.

/// Returns the client area above the status bar, which belongs to the active screen.
[[nodiscard]] Rect screenArea(Size client, std::int32_t statusBarHeight);

/// Returns the box of the tab control within the screen's area.
[[nodiscard]] Rect frameArea(const Rect& screen, Scale scale);

/// Returns the four strips that the editor's screen paints around the tab control. They overlap its edges by one pixel.
/// The left and right strips have the full height; the top and bottom strips are between them.
[[nodiscard]] std::array<Rect, 4> frameBackground(const Rect& screen, Scale scale);

/// Returns the right edges of the status bar's three parts: the number of entries, the current entry, the
/// version.
[[nodiscard]] std::array<std::int32_t, 3> statusPartEdges(Scale scale);
inline constexpr std::int32_t kEntriesPart = 0;
inline constexpr std::int32_t kCurrentEntryPart = 1;
inline constexpr std::int32_t kVersionPart = 2;

/// Returns the height of the interface's font for LOGFONT: negative, because it is the height of the characters.
[[nodiscard]] constexpr std::int32_t fontHeight(Scale scale) { return -(scale.dpi / 8); }

}  // namespace quillhue
