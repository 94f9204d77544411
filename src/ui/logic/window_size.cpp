#include "ui/logic/window_size.h"

namespace quillhue {

Rect keepMinimum(Rect window, SizingEdge edge, Scale scale) {
  const auto [width, height] = minimumWindowSize(scale);
  const bool isLeft = edge == SizingEdge::left || edge == SizingEdge::topLeft || edge == SizingEdge::bottomLeft;
  const bool isRight = edge == SizingEdge::right || edge == SizingEdge::topRight || edge == SizingEdge::bottomRight;
  const bool isTop = edge == SizingEdge::top || edge == SizingEdge::topLeft || edge == SizingEdge::topRight;
  const bool isBottom = edge == SizingEdge::bottom || edge == SizingEdge::bottomLeft || edge == SizingEdge::bottomRight;
  if (isRight && window.width() < width) {
    window.right = window.left + width;
  }
  if (isLeft && window.width() < width) {
    window.left = window.right - width;
  }
  if (isBottom && window.height() < height) {
    window.bottom = window.top + height;
  }
  if (isTop && window.height() < height) {
    window.top = window.bottom - height;
  }
  return window;
}

}  // namespace quillhue
