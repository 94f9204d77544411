#include "ui/logic/grid_layout.h"

#include <algorithm>
#include <cstdlib>

namespace quillhue {

namespace {

// Width reserved for the tab's controls on the right, in 1/96 inch.
constexpr std::int32_t kControlsWidth = 160;
constexpr std::int32_t kMargin = 10;

}  // namespace

GridLayout::GridLayout(const Rect& area, std::int32_t paletteSize, Scale scale) : area_(area), margin_(scale(kMargin)) {
  const std::int32_t width = area.width() - scale(kControlsWidth);
  const std::int32_t height = area.height() - 2 * margin_;
  while (columns_ * rows_ < paletteSize) {
    if (width / columns_ < height / rows_) {
      rows_ *= 2;
    } else {
      columns_ *= 2;
    }
  }
  cell_ = std::min(height / rows_, width / columns_);
}

Point GridLayout::cornerOf(std::int32_t index) const {
  return {index % columns_ * cell_ + margin_, index / columns_ * cell_ + margin_};
}

Rect GridLayout::cellBox(std::int32_t index) const { return boxAt(cornerOf(index), {cell_, cell_}); }

Rect GridLayout::colorBox(std::int32_t index) const {
  const auto [x, y] = cornerOf(index);
  return {x + 2, y + 2, x + cell_ - 1, y + cell_ - 1};
}

std::int32_t GridLayout::hitTest(Point point) const {
  const Rect grid = boxAt({margin_, margin_}, {columns_ * cell_, rows_ * cell_});
  if (cell_ < 1 || !grid.contains(point)) {
    return kNoEntry;
  }
  return (point.x - margin_) / cell_ + (point.y - margin_) / cell_ * columns_;
}

Point GridLayout::nearestInside(Point point) const {
  const auto inside = [&](std::int32_t value, std::int32_t cells) {
    return std::clamp(value, margin_, margin_ + std::max(cells * cell_, 1) - 1);
  };
  return {inside(point.x, columns_), inside(point.y, rows_)};
}

std::vector<std::int32_t> GridLayout::crossedCells(Point from, Point to) const {
  std::vector<std::int32_t> cells;
  const std::int64_t steps = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
  for (std::int64_t step = 0; step <= steps; ++step) {
    const auto between = [&](std::int32_t a, std::int32_t b) {
      return steps == 0 ? b : static_cast<std::int32_t>(a + (b - a) * step / steps);
    };
    const std::int32_t index = hitTest({between(from.x, to.x), between(from.y, to.y)});
    if (index != kNoEntry && (cells.empty() || cells.back() != index)) {
      cells.push_back(index);
    }
  }
  return cells;
}

ContextClick contextClick(const GridLayout& grid, Point point, std::int32_t paletteSize) {
  const std::int32_t index = grid.hitTest(point);
  return {index, index < paletteSize};
}

Point contextMenuPoint(const GridLayout& grid, std::int32_t index) {
  const Rect cell = grid.cellBox(index);
  return {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
}

}  // namespace quillhue
