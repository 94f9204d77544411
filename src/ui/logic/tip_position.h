#pragma once

#include "ui/logic/geometry.h"

namespace quillhue {

/// Returns the top left corner of a tooltip of this size: below the pointer, or above it at the bottom of the screen.
/// The tooltip is within the screen as far as it fits, and never under the pointer. Points are in screen coordinates.
[[nodiscard]] Point tipPosition(Point pointer, Size tip, const Rect& screen, Scale scale);

}  // namespace quillhue
