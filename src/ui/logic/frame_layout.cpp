#include "ui/logic/frame_layout.h"

namespace quillhue {

Rect screenArea(Size client, std::int32_t statusBarHeight) {
  return {0, 0, client.width, client.height - statusBarHeight};
}

Rect frameArea(const Rect& screen, Scale scale) { return screen.inset(scale(4)); }

std::array<Rect, 4> frameBackground(const Rect& screen, Scale scale) {
  const Rect inner = frameArea(screen, scale).inset(1);
  return {{{screen.left, screen.top, inner.left, screen.bottom},
           {inner.left, screen.top, inner.right, inner.top},
           {inner.right, screen.top, screen.right, screen.bottom},
           {inner.left, inner.bottom, inner.right, screen.bottom}}};
}

std::array<std::int32_t, 3> statusPartEdges(Scale scale) { return {scale(80), scale(160), scale(392)}; }

}  // namespace quillhue
