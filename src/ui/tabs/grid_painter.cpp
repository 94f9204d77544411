#include "ui/tabs/grid_painter.h"

#include <algorithm>

#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

// The two colors of each outline, of which one is visible on any color. The first one is visible on the background.
COLORREF outerColor() { return GetSysColor(COLOR_WINDOWTEXT); }
COLORREF innerColor() { return GetSysColor(COLOR_WINDOW); }

// Boxes of GridLayout are measured as outlined rectangles.
Rect filledPart(const Rect& outlined) { return {outlined.left, outlined.top, outlined.right - 1, outlined.bottom - 1}; }

bool overlap(const Rect& one, const Rect& other) {
  return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom;
}

// Draws a frame around the color and a line of the other color on its edge.
void paintSelected(HDC dc, const Rect& cell, const Rect& color) {
  frameBox(dc, cell, color.left - cell.left, outerColor());
  frameBox(dc, color, 1, innerColor());
}

// Draws a line of each color inside the entry's color, each two pixels wide if the color is large. A color that is too
// small for lines inside gets them around it, within its cell.
void paintCurrent(HDC dc, const Rect& cell, const Rect& color) {
  constexpr std::int32_t kSmallColor = 8;
  constexpr std::int32_t kLargeColor = 24;
  if (color.width() < kSmallColor) {
    frameBox(dc, cell, 1, outerColor());
    frameBox(dc, cell.inset(1), 1, innerColor());
    return;
  }
  const std::int32_t line = color.width() >= kLargeColor ? 2 : 1;
  const Rect inside = color.inset(1);
  frameBox(dc, inside, line, outerColor());
  frameBox(dc, inside.inset(line), line, innerColor());
}

void paintFocus(HDC dc, const GridLayout& grid) {
  const std::int32_t gap = grid.margin() / 2;
  const Rect cells = boxAt({grid.margin(), grid.margin()}, {grid.columns() * grid.cell(), grid.rows() * grid.cell()});
  const RECT frame = toSystem(
      Rect{cells.left - gap, cells.top - gap, std::min(cells.right + gap, grid.rightEdge()), cells.bottom + gap});
  SetTextColor(dc, outerColor());
  SetBkColor(dc, innerColor());
  DrawFocusRect(dc, &frame);
}

}  // namespace

void paintGrid(HDC dc, const Rect& box, const GridLayout& grid, const GridPicture& picture) {
  fillBoxWithSystemColor(dc, box, COLOR_WINDOW);
  const std::int32_t size = picture.palette.getSize();
  for (std::int32_t index = 0; index < size; ++index) {
    const Rect cell = grid.cellBox(index);
    const Rect color = filledPart(grid.colorBox(index));
    if (!overlap(cell, box)) {
      continue;
    }
    if (!color.isEmpty()) {
      fillBox(dc, color, toSystem(picture.palette.entry(index)));
      // Makes entries visible that have the background's color.
      frameBox(dc, color.inset(-1), 1, GetSysColor(COLOR_BTNSHADOW));
    }
    const auto place = static_cast<std::size_t>(index);
    if (place < picture.selected.size() && picture.selected[place] != 0) {
      paintSelected(dc, cell, color);
    }
    if (index == picture.currentEntry) {
      paintCurrent(dc, cell, color);
    }
  }
  if (picture.hasFocus) {
    paintFocus(dc, grid);
  }
}

}  // namespace quillhue
