#include "ui/logic/use_layout.h"

#include <algorithm>

namespace quillhue {

namespace {

// Lays out the view and its scroll bars from the area's left edge.
void layOutView(UseLayout& layout, Size scrollBar, Scale scale) {
  const Rect& area = layout.surface;
  const std::int32_t top = area.top + scale(24);
  layout.imageArea = {area.left, area.top, area.right - scale(147), area.bottom};
  layout.status = {area.left + scale(8), area.top + scale(8), layout.imageArea.right, top};
  const std::int32_t right = std::max(layout.imageArea.right - scrollBar.width, area.left);
  const std::int32_t bottom = std::max(area.bottom - scrollBar.height, top);
  layout.view = {area.left, top, right, bottom};
  layout.horizontalBar = boxAt({area.left, bottom}, {right - area.left, scrollBar.height});
  layout.verticalBar = boxAt({right, top}, {scrollBar.width, bottom - top});
}

}  // namespace

UseLayout useLayout(const Rect& area, Size scrollBar, Scale scale) {
  UseLayout layout;
  layout.surface = area;
  layOutView(layout, scrollBar, scale);
  // The column of controls, measured from the right edge.
  const auto corner = [&](std::int32_t fromRight, std::int32_t top) {
    return Point{area.right - scale(fromRight), area.top + scale(top)};
  };
  const auto box = [&](std::int32_t fromRight, std::int32_t top, Size size) {
    return boxAt(corner(fromRight, top), scale(size));
  };
  layout.load = box(139, 4, {60, 22});
  layout.maintain = box(139, 30, {131, 20});
  layout.nearest = box(139, 50, {131, 20});
  layout.dither = box(139, 70, {131, 20});
  layout.protectColor = box(139, 92, {131, 18});
  layout.color = box(56, 110, {48, 22});
  layout.protectGrid = box(139, 138, {131, 18});
  layout.gridWidth = box(56, 160, {48, 22});
  layout.gridHeight = box(56, 184, {48, 22});
  const auto label = [&](std::int32_t top, const Rect& field) {
    const Point start = corner(104, top);
    return Rect{start.x, start.y, corner(56, top).x, field.bottom};
  };
  layout.widthLabel = label(162, layout.gridWidth);
  layout.heightLabel = label(186, layout.gridHeight);
  layout.process = box(139, 216, {60, 22});
  layout.saveAs = box(68, 216, {60, 22});
  return layout;
}

}  // namespace quillhue
