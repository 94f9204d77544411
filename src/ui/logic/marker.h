#pragma once

#include <array>

#include "ui/logic/geometry.h"

namespace quillhue {

using Triangle = std::array<Point, 3>;

/// Returns two small triangles that mark a point from the left and from the right. The first corner of each is its tip.
[[nodiscard]] std::array<Triangle, 2> markerAt(Point point, Scale scale);

}  // namespace quillhue
