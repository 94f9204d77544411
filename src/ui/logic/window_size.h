#pragma once

#include <cstdint>

#include "ui/logic/geometry.h"

namespace quillhue {

/// The main window's outer size.

[[nodiscard]] constexpr Size minimumWindowSize(Scale scale) { return scale({436, 376}); }
[[nodiscard]] constexpr Size defaultWindowSize(Scale scale) {
  return {2 * minimumWindowSize(scale).width, 2 * minimumWindowSize(scale).height};
}

/// The edge or corner by which a window is dragged, numbered as Windows does.
enum class SizingEdge : std::uint8_t { left = 1, right, top, topLeft, topRight, bottom, bottomLeft, bottomRight };

/// The dragged window, not smaller than the minimum: the edges that are dragged give way.
[[nodiscard]] Rect keepMinimum(Rect window, SizingEdge edge, Scale scale);

}  // namespace quillhue
