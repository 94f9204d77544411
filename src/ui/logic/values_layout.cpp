#include "ui/logic/values_layout.h"

namespace quillhue {

ValuesLayout valuesLayout(const GridLayout& grid, Scale scale) {
  const Rect& area = grid.area();
  const std::int32_t center = grid.controlsCenter();
  const std::int32_t fieldsTop = area.bottom - scale(64);
  const auto field = [&](std::int32_t left) { return boxAt({center + scale(left), fieldsTop}, scale({48, 22})); };
  return {
      .surface = {area.left + grid.rightEdge(), area.top, area.right, area.bottom},
      .leftField = field(-72),
      .middleField = field(-24),
      .rightField = field(24),
      .modelList = boxAt({center - scale(58), area.bottom - scale(34)}, scale({116, 256})),
  };
}

}  // namespace quillhue
