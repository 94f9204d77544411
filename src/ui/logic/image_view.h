#pragma once

#include <cstdint>

#include "ui/logic/geometry.h"

namespace quillhue {

/// Scrolling of an image that may be larger than its view, in pixels.

/// Range of a scroll bar: positions 0 .. extent - 1, of which `page` are visible at a time.
struct ScrollRange {
  std::int32_t extent = 0;
  std::int32_t page = 0;

  /// The distance of one page step, at least 1.
  [[nodiscard]] std::int32_t step() const { return page > 1 ? page : 1; }
  /// The maximum position, which shows the end of the image; 0 if the whole image is visible.
  [[nodiscard]] std::int32_t last() const;
  /// Returns the nearest valid position.
  [[nodiscard]] std::int32_t clamp(std::int32_t position) const;
};

/// Actions of the user on a scroll bar.
enum class ScrollAction : std::uint8_t { lineBack, lineForward, pageBack, pageForward, track, toStart, toEnd };

/// Returns the new position. `tracked` is the position to which the thumb is dragged.
[[nodiscard]] std::int32_t scrolled(ScrollAction action, std::int32_t position, std::int32_t tracked,
                                    const ScrollRange& range);

/// Rows of an image, `end` not included.
struct RowRange {
  std::int32_t begin = 0;
  std::int32_t end = 0;

  [[nodiscard]] bool isEmpty() const { return end <= begin; }
  [[nodiscard]] std::int32_t count() const { return isEmpty() ? 0 : end - begin; }

  friend bool operator==(const RowRange&, const RowRange&) = default;
};

/// Returns the rows visible from `firstRow` on in the tab's image area of this height, plus the rows processed between
/// two progress reports.
[[nodiscard]] RowRange visibleRows(std::int32_t firstRow, std::int32_t areaHeight, Scale scale);

}  // namespace quillhue
