#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "ui/logic/geometry.h"

namespace quillhue {

/// An index that is not an entry of any palette.
inline constexpr std::int32_t kNoEntry = std::numeric_limits<std::int32_t>::max();

/// Layout of a palette as a grid of square cells at the left of a tab's area. The cells are as large as the area
/// allows. Columns and rows are powers of two, so some cells may be empty. All points and boxes are relative to the
/// area's top left corner.
///
/// Boxes are measured as outlined rectangles: a fill without an outline leaves out the last column and row of pixels.
class GridLayout {
 public:
  /// Makes a grid with one cell of size 0.
  GridLayout() = default;
  /// `area` is the tab's area in client coordinates of the main window.
  GridLayout(const Rect& area, std::int32_t paletteSize, Scale scale);

  [[nodiscard]] const Rect& area() const { return area_; }
  [[nodiscard]] std::int32_t columns() const { return columns_; }
  [[nodiscard]] std::int32_t rows() const { return rows_; }
  /// The side of a cell. Less than 1 if the area is too small; then nothing is visible and hit tests find nothing.
  [[nodiscard]] std::int32_t cell() const { return cell_; }
  /// The margin to the left of the grid and above it.
  [[nodiscard]] std::int32_t margin() const { return margin_; }
  /// The right edge of the grid with its margins, where the tab's controls begin.
  [[nodiscard]] std::int32_t rightEdge() const { return columns_ * cell_ + margin_ + 2; }
  /// The x on which the controls are centered, in the main window: the middle of the space to the right of the grid.
  [[nodiscard]] std::int32_t controlsCenter() const { return area_.left + (rightEdge() + area_.width()) / 2; }
  /// The part of the area that the palette uses.
  [[nodiscard]] Rect paletteArea() const { return {0, 0, rightEdge(), area_.height()}; }

  /// Returns the whole cell of an entry.
  [[nodiscard]] Rect cellBox(std::int32_t index) const;
  /// Returns the part of the cell that the entry's color fills.
  [[nodiscard]] Rect colorBox(std::int32_t index) const;

  /// Returns the index of the cell at the point, which may be past the palette's end, or kNoEntry outside the grid.
  [[nodiscard]] std::int32_t hitTest(Point point) const;
  /// Returns the point if it is inside the grid, otherwise the nearest point inside.
  [[nodiscard]] Point nearestInside(Point point) const;
  /// Returns the cells on the straight line between two points in order, including the cells of both points.
  [[nodiscard]] std::vector<std::int32_t> crossedCells(Point from, Point to) const;

  /// Used to skip repainting when the layout is unchanged.
  friend bool operator==(const GridLayout&, const GridLayout&) = default;

 private:
  [[nodiscard]] Point cornerOf(std::int32_t index) const;

  Rect area_;
  std::int32_t columns_ = 1;
  std::int32_t rows_ = 1;
  std::int32_t cell_ = 0;
  std::int32_t margin_ = 0;
};

/// Result of a right click on the grid: the new current entry, and whether the context menu opens.
struct ContextClick {
  std::int32_t currentEntry = kNoEntry;
  bool opensMenu = false;
};
[[nodiscard]] ContextClick contextClick(const GridLayout& grid, Point point, std::int32_t paletteSize);

/// Returns the position of a context menu opened by keyboard: the middle of the entry's cell.
[[nodiscard]] Point contextMenuPoint(const GridLayout& grid, std::int32_t index);

}  // namespace quillhue
