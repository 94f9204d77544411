#pragma once

#include <array>

#include "ui/logic/geometry.h"

namespace quillhue {

using Triangle = std::array<Point, 3>;

/// A pair of small triangles that mark a point from its left and from its right, each with its tip first.
[[nodiscard]] std::array<Triangle, 2> markerAt(Point point, Scale scale);

}  // namespace quillhue
