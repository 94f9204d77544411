#pragma once

#include <cstdint>
#include <optional>

#include "colormodes/color_mode.h"
#include "core/value_range.h"
#include "ui/logic/geometry.h"

namespace quillhue {

/// Layout of the three gradient bars on their surface, each with its fixed strip on the right. All points and boxes are
/// relative to the surface's top left corner.
class BarsLayout {
 public:
  BarsLayout(Size surface, Scale scale);

  /// The height of the bars, at least 0.
  [[nodiscard]] std::int32_t height() const { return height_; }
  [[nodiscard]] Rect barBox(Bar bar) const;
  [[nodiscard]] Rect stripBox(Bar bar) const;
  /// Returns the position in the gradient, 0 .. kBarPositions - 1, that a row of pixels shows. `row` counts upward from
  /// 0 at the bottom to height() - 1.
  [[nodiscard]] std::int32_t positionOfRow(std::int32_t row) const;

  /// Returns the point that the marker of a channel's value points at.
  [[nodiscard]] Point markerPoint(Bar bar, const ValueRange& range, std::int32_t value) const;

  /// Returns the box to repaint when the entry changes: bars, strips and markers.
  [[nodiscard]] Rect changingBox() const;

  /// Returns the area in which mouse presses and wheel turns act on the bar.
  [[nodiscard]] Rect zone(Bar bar) const;
  /// Returns the bar whose zone contains the point.
  [[nodiscard]] std::optional<Bar> barAt(Point point) const;
  /// For dragging: the pointer's height above the bars' bottom edge, and the height of the maximum value.
  [[nodiscard]] std::int32_t heightAt(std::int32_t y) const { return bottom_ - y; }
  [[nodiscard]] std::int32_t usableHeight() const { return bottom_ - top_ - 1; }

 private:
  Scale scale_;
  std::int32_t center_;
  std::int32_t top_;
  std::int32_t bottom_;
  std::int32_t height_;
};

}  // namespace quillhue
