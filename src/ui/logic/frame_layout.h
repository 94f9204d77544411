#pragma once

#include <array>

#include "ui/logic/geometry.h"

namespace quillhue {

/// Where the tab control stands in the main window, whose client area ends below in the status bar.

/// The client area that belongs to the active screen.
[[nodiscard]] Rect screenArea(Size client, std::int32_t statusBarHeight);

/// Of that the tab control's part.
[[nodiscard]] Rect frameArea(const Rect& screen, Scale scale);

/// The four strips that the editor's screen paints around the tab control, going one pixel over its edges: left and
/// right over all the height, above and below between them.
[[nodiscard]] std::array<Rect, 4> frameBackground(const Rect& screen, Scale scale);

/// The x where each of the status bar's three parts ends: the number of entries, nothing, the version.
[[nodiscard]] std::array<std::int32_t, 3> statusPartEdges(Scale scale);
inline constexpr std::int32_t kEntriesPart = 0;
inline constexpr std::int32_t kVersionPart = 2;

/// The height of the interface's font as the system takes it, negative for that of the characters.
[[nodiscard]] constexpr std::int32_t fontHeight(Scale scale) { return -(scale.dpi / 8); }

}  // namespace quillhue
