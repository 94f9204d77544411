#include "ui/logic/marker.h"

namespace quillhue {

std::array<Triangle, 2> markerAt(Point point, Scale scale) {
  const std::int32_t tip = scale(17);
  const std::int32_t base = scale(21);
  const std::int32_t half = scale(4);
  const auto pointing = [&](std::int32_t side) {
    const std::int32_t baseX = point.x + side * base;
    return Triangle{{{point.x + side * tip, point.y}, {baseX, point.y - half}, {baseX, point.y + half}}};
  };
  return {pointing(-1), pointing(1)};
}

}  // namespace quillhue
