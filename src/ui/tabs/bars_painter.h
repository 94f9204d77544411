#pragma once

#include "colormodes/color_mode.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/geometry.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Paints what lies in `box` of the surface of the three gradient bars: each bar with its fixed strip in a frame, and
/// the markers of the current values. Points are relative to the surface's corner. Makes no object of the system.
void paintBars(HDC dc, const Rect& box, const BarsLayout& layout, const ColorMode& mode, Scale scale);

}  // namespace quillhue
