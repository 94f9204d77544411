#pragma once

#include <cstdint>

namespace quillhue {

/// Points, sizes and rectangles in pixels.

struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;

  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  std::int32_t width = 0;
  std::int32_t height = 0;

  friend bool operator==(const Size&, const Size&) = default;
};

/// A rectangle that includes its left and top edges and excludes its right and bottom edges.
struct Rect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;

  [[nodiscard]] constexpr std::int32_t width() const { return right - left; }
  [[nodiscard]] constexpr std::int32_t height() const { return bottom - top; }
  [[nodiscard]] constexpr bool isEmpty() const { return right <= left || bottom <= top; }
  [[nodiscard]] constexpr bool contains(Point point) const {
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
  }
  /// Returns the rectangle shrunk by `by` pixels on each side, or grown if `by` is negative.
  [[nodiscard]] constexpr Rect inset(std::int32_t by) const { return {left + by, top + by, right - by, bottom - by}; }

  friend bool operator==(const Rect&, const Rect&) = default;
};

constexpr Rect boxAt(Point corner, Size size) {
  return {corner.x, corner.y, corner.x + size.width, corner.y + size.height};
}

/// Converts lengths from 1/96 inch to pixels of a screen, truncated.
struct Scale {
  std::int32_t dpi = 96;

  [[nodiscard]] constexpr std::int32_t operator()(std::int32_t length) const { return length * dpi / 96; }
  [[nodiscard]] constexpr Size operator()(Size size) const { return {(*this)(size.width), (*this)(size.height)}; }
};

}  // namespace quillhue
