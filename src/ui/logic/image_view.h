#pragma once

#include <cstdint>

#include "ui/logic/geometry.h"

namespace quillhue {

/// Scrolling an image that may be larger than its view, in pixels.

/// What a scroll bar is given: positions 0 .. extent - 1, of which it shows a page.
struct ScrollRange {
  std::int32_t extent = 0;
  std::int32_t page = 0;

  /// How far a page leads, at least 1.
  [[nodiscard]] std::int32_t step() const { return page > 1 ? page : 1; }
  /// The greatest position, at which the end is in view; 0 where everything is.
  [[nodiscard]] std::int32_t last() const;
  /// The nearest position that there is.
  [[nodiscard]] std::int32_t clamp(std::int32_t position) const;
};

/// What the user does with a scroll bar.
enum class ScrollAction : std::uint8_t { lineBack, lineForward, pageBack, pageForward, track, toStart, toEnd };

/// The new position; `tracked` is where the thumb is dragged to.
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

/// The rows from the first visible one that can be seen in an image area of this height (that of the tab), and as many
/// more as are done between two looks at the progress.
[[nodiscard]] RowRange visibleRows(std::int32_t firstRow, std::int32_t areaHeight, Scale scale);

}  // namespace quillhue
