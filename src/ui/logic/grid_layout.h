#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "ui/logic/geometry.h"

namespace quillhue {

/// No entry of any palette.
inline constexpr std::int32_t kNoEntry = std::numeric_limits<std::int32_t>::max();

/// Where the entries of a palette stand as square cells at the left of a tab's area, as large as the area allows.
/// Columns and rows are powers of two, so some cells may be empty. All points and boxes are relative to the area's
/// corner.
///
/// Boxes that are painted have the edges of an outlined rectangle: without an outline, their last column and row of
/// pixels stay as they are.
class GridLayout {
 public:
  /// One cell of no size.
  GridLayout() = default;
  /// `area` is that of the tab, in the main window.
  GridLayout(const Rect& area, std::int32_t paletteSize, Scale scale);

  [[nodiscard]] const Rect& area() const { return area_; }
  [[nodiscard]] std::int32_t columns() const { return columns_; }
  [[nodiscard]] std::int32_t rows() const { return rows_; }
  /// The side of a cell. Less than 1 where the area is too small; then there is nothing to see or to hit.
  [[nodiscard]] std::int32_t cell() const { return cell_; }
  /// Left of the grid and above it.
  [[nodiscard]] std::int32_t margin() const { return margin_; }
  /// Where the grid ends with its margins, and the tab's controls begin.
  [[nodiscard]] std::int32_t rightEdge() const { return columns_ * cell_ + margin_ + 2; }
  /// The line around which the controls stand, in the main window: the middle of what the grid leaves free.
  [[nodiscard]] std::int32_t controlsCenter() const { return area_.left + (rightEdge() + area_.width()) / 2; }
  /// The palette's part of the area.
  [[nodiscard]] Rect paletteArea() const { return {0, 0, rightEdge(), area_.height()}; }

  /// All of an entry's cell.
  [[nodiscard]] Rect cellBox(std::int32_t index) const;
  /// What an entry's color fills of it.
  [[nodiscard]] Rect colorBox(std::int32_t index) const;

  /// The index of the cell at the point, which may be past the palette's end; kNoEntry outside the grid.
  [[nodiscard]] std::int32_t hitTest(Point point) const;
  /// The point itself within the grid, and otherwise the nearest one there.
  [[nodiscard]] Point nearestInside(Point point) const;
  /// The cells that a pointer has crossed on a straight way from one point to another, both included, in order.
  [[nodiscard]] std::vector<std::int32_t> crossedCells(Point from, Point to) const;

  /// Equal layouts need no repainting.
  friend bool operator==(const GridLayout&, const GridLayout&) = default;

 private:
  [[nodiscard]] Point cornerOf(std::int32_t index) const;

  Rect area_;
  std::int32_t columns_ = 1;
  std::int32_t rows_ = 1;
  std::int32_t cell_ = 0;
  std::int32_t margin_ = 0;
};

/// A right click on the grid: what becomes the current entry, and whether the context menu opens.
struct ContextClick {
  std::int32_t currentEntry = kNoEntry;
  bool opensMenu = false;
};
[[nodiscard]] ContextClick contextClick(const GridLayout& grid, Point point, std::int32_t paletteSize);

/// Where the context menu opens that is asked for by a key: the middle of the entry's cell.
[[nodiscard]] Point contextMenuPoint(const GridLayout& grid, std::int32_t index);

}  // namespace quillhue
