#include "ui/logic/tip_position.h"

#include <algorithm>

namespace quillhue {

Point tipPosition(Point pointer, Size tip, const Rect& screen, Scale scale) {
  // In 1/96 inch: the part of the arrow below its tip, with a gap, and the gap above the tip.
  const std::int32_t below = scale(22);
  const std::int32_t above = scale(4);
  const bool fitsBelow = pointer.y + below + tip.height <= screen.bottom;
  return {std::max(std::min(pointer.x, screen.right - tip.width), screen.left),
          fitsBelow ? pointer.y + below : pointer.y - above - tip.height};
}

}  // namespace quillhue
