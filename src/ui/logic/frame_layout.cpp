#include "ui/logic/frame_layout.h"

namespace quillhue {

Rect screenArea(Size client, std::int32_t statusBarHeight) {
  return {0, 0, client.width, client.height - statusBarHeight};
}

Rect frameArea(const Rect& screen, Scale scale) { return screen.inset(scale(4)); }

std::array<Rect, 4> stripsAround(const Rect& outer, const Rect& inner) {
  return {{{outer.left, outer.top, inner.left, outer.bottom},
           {inner.left, outer.top, inner.right, inner.top},
           {inner.right, outer.top, outer.right, outer.bottom},
           {inner.left, inner.bottom, inner.right, outer.bottom}}};
}

std::array<Rect, 4> frameBackground(const Rect& screen, Scale scale) {
  return stripsAround(screen, frameArea(screen, scale).inset(1));
}

std::array<std::int32_t, 3> statusPartEdges(Scale scale) { return {scale(80), scale(160), scale(392)}; }

}  // namespace quillhue
