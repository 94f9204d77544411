#pragma once

#include <cstdint>
#include <optional>

#include "colormodes/color_mode.h"
#include "core/value_range.h"
#include "ui/logic/geometry.h"

namespace quillhue {

/// Where the three gradient bars stand on their surface, each with the fixed strip at its right. All points and boxes
/// are relative to the surface's corner.
class BarsLayout {
 public:
  BarsLayout(Size surface, Scale scale);

  /// The height that is painted, at least 0.
  [[nodiscard]] std::int32_t height() const { return height_; }
  [[nodiscard]] Rect barBox(Bar bar) const;
  [[nodiscard]] Rect stripBox(Bar bar) const;
  /// The position of the gradient, 0 .. kBarPositions - 1, whose color a row of pixels takes; `row` counts upward from
  /// 0 at the bottom to height() - 1.
  [[nodiscard]] std::int32_t positionOfRow(std::int32_t row) const;

  /// Where the marker of a channel's value points.
  [[nodiscard]] Point markerPoint(Bar bar, const ValueRange& range, std::int32_t value) const;

  /// All that changes with the entry: bars, strips and markers.
  [[nodiscard]] Rect changingBox() const;

  /// Where a press or a turn of the wheel means the bar.
  [[nodiscard]] Rect zone(Bar bar) const;
  /// The bar whose zone the point is in.
  [[nodiscard]] std::optional<Bar> barAt(Point point) const;
  /// What dragging takes: the pointer's height above the bars' bottom edge, and the height that stands for the
  /// greatest value.
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
