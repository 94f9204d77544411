#include "ui/logic/bars_layout.h"

#include <algorithm>
#include <array>

namespace quillhue {

namespace {

// Horizontal edges of a channel's boxes relative to the surface's center line, in 1/96 inch. Each edge is scaled on its
// own, which determines the rounding.
struct Edges {
  std::int32_t bar;
  std::int32_t zoneLeft;
  std::int32_t zoneRight;
};
constexpr std::array<Edges, 3> kEdges{{{-64, -69, -27}, {-16, -21, 21}, {32, 27, 69}}};

constexpr const Edges& edgesOf(Bar bar) { return kEdges[static_cast<std::size_t>(bar)]; }

constexpr std::int32_t kBarWidth = 24;
constexpr std::int32_t kStripWidth = 8;
constexpr std::int32_t kAbove = 10;
constexpr std::int32_t kBelow = 76;
// Distance by which the zones extend above and below the bars.
constexpr std::int32_t kOverhang = 4;

}  // namespace

BarsLayout::BarsLayout(Size surface, Scale scale)
    : scale_(scale),
      center_(surface.width / 2),
      top_(scale(kAbove) + 2),
      bottom_(surface.height - scale(kBelow)),
      height_(std::max(bottom_ - top_, 0)) {}

Rect BarsLayout::barBox(Bar bar) const {
  return boxAt({center_ + scale_(edgesOf(bar).bar), top_}, {scale_(kBarWidth), height_});
}

Rect BarsLayout::stripBox(Bar bar) const { return boxAt({barBox(bar).right, top_}, {scale_(kStripWidth), height_}); }

std::int32_t BarsLayout::positionOfRow(std::int32_t row) const {
  return height_ < 2 ? 0 : row * (kBarPositions - 1) / (height_ - 1);
}

Point BarsLayout::markerPoint(Bar bar, const ValueRange& range, std::int32_t value) const {
  const std::int32_t way = std::max(height_ - 3, 0);
  const std::int32_t side = static_cast<std::int32_t>(bar) - static_cast<std::int32_t>(Bar::middle);
  return {center_ + side * scale_(48), top_ + (range.maximum - value) * way / (range.maximum - range.minimum)};
}

// One pixel larger on each side than the zones, because the markers' outlines are on their edges.
Rect BarsLayout::changingBox() const {
  const Rect left = zone(Bar::left);
  const Rect right = zone(Bar::right);
  return Rect{left.left, left.top, right.right, right.bottom}.inset(-1);
}

Rect BarsLayout::zone(Bar bar) const {
  const Edges& edges = edgesOf(bar);
  return {center_ + scale_(edges.zoneLeft), top_ - scale_(kOverhang), center_ + scale_(edges.zoneRight),
          bottom_ + scale_(kOverhang)};
}

std::optional<Bar> BarsLayout::barAt(Point point) const {
  for (const Bar bar : kBars) {
    if (zone(bar).contains(point)) {
      return bar;
    }
  }
  return std::nullopt;
}

}  // namespace quillhue
