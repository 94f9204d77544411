#include "ui/tabs/bars_painter.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "ui/logic/marker.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// Stretches a column of the gradient, one pixel wide, to the width of the box.
void paintGradient(HDC dc, const Rect& box, const BarsLayout& layout, const BarColors& colors) {
  std::vector<std::uint32_t> column(static_cast<std::size_t>(layout.height()));
  for (std::int32_t row = 0; row < layout.height(); ++row) {
    const PaletteEntry& color = colors[static_cast<std::size_t>(layout.positionOfRow(row))];
    column[static_cast<std::size_t>(row)] =
        static_cast<std::uint32_t>(color.red) << 16 | static_cast<std::uint32_t>(color.green) << 8 | color.blue;
  }
  BITMAPINFO description{};
  description.bmiHeader.biSize = sizeof description.bmiHeader;
  description.bmiHeader.biWidth = 1;
  // A positive height means rows from bottom to top, like the row numbers.
  description.bmiHeader.biHeight = layout.height();
  description.bmiHeader.biPlanes = 1;
  description.bmiHeader.biBitCount = 32;
  StretchDIBits(dc, box.left, box.top, box.width(), box.height(), 0, 0, 1, layout.height(), column.data(), &description,
                DIB_RGB_COLORS, SRCCOPY);
}

void paintMarker(HDC dc, Point point, Scale scale) {
  const Selected brush(dc, GetStockObject(DC_BRUSH));
  const Selected pen(dc, GetStockObject(DC_PEN));
  SetDCBrushColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  SetDCPenColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  for (const Triangle& triangle : markerAt(point, scale)) {
    std::array<POINT, 3> corners{};
    for (std::size_t i = 0; i < corners.size(); ++i) {
      corners[i] = toSystem(triangle[i]);
    }
    Polygon(dc, corners.data(), static_cast<int>(corners.size()));
  }
}

}  // namespace

void paintBars(HDC dc, const Rect& box, const BarsLayout& layout, const ColorMode& mode, Scale scale) {
  fillBoxWithSystemColor(dc, box, COLOR_WINDOW);
  if (layout.height() <= 0) {
    return;
  }
  for (const Bar bar : kBars) {
    const Rect gradient = layout.barBox(bar);
    const Rect strip = layout.stripBox(bar);
    frameBox(dc, Rect{gradient.left, gradient.top, strip.right, strip.bottom}.inset(-1), 1,
             GetSysColor(COLOR_BTNSHADOW));
    paintGradient(dc, gradient, layout, mode.bar(bar));
    paintGradient(dc, strip, layout, mode.fixedStrip(bar));
    paintMarker(dc, layout.markerPoint(bar, mode.channelRange(bar), mode.getValue(bar)), scale);
  }
}

}  // namespace quillhue
