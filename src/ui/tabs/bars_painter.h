#pragma once

#include "colormodes/color_mode.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Paints the part of the bars' surface that is in `box`: each bar with its fixed strip in a frame, and the markers of
/// the current values. Points are relative to the surface's top left corner. Creates no GDI object.
void paintBars(HDC dc, const Rect& box, const BarsLayout& layout, const ColorMode& mode, Scale scale);

}  // namespace quillhue
