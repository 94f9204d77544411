#pragma once

#include <cstdint>

#include "ui/logic/geometry.h"

namespace quillhue {

/// Limits of the main window's outer size.

[[nodiscard]] constexpr Size minimumWindowSize(Scale scale) { return scale({436, 376}); }
[[nodiscard]] constexpr Size defaultWindowSize(Scale scale) {
  return {2 * minimumWindowSize(scale).width, 2 * minimumWindowSize(scale).height};
}

/// The edge or corner by which a window is resized. The values are those of WMSZ_LEFT and so on in WM_SIZING.
enum class SizingEdge : std::uint8_t { left = 1, right, top, topLeft, topRight, bottom, bottomLeft, bottomRight };

/// Enlarges a window to the minimum size by moving the edges that are being dragged.
[[nodiscard]] Rect keepMinimum(Rect window, SizingEdge edge, Scale scale);

}  // namespace quillhue
