#include "ui/logic/effects_layout.h"

namespace quillhue {

EffectsLayout effectsLayout(const GridLayout& grid, Scale scale) {
  const Rect& area = grid.area();
  const std::int32_t center = grid.controlsCenter();
  const std::int32_t boxesLeft = center - scale(64);
  const std::int32_t buttonsTop = area.bottom - scale(88);
  const auto box = [&](std::int32_t top) { return boxAt({boxesLeft, area.top + scale(top)}, scale({64, 24})); };
  const auto below = [&](std::int32_t x, std::int32_t y, Size size) {
    return boxAt({center + scale(x), buttonsTop + scale(y)}, scale(size));
  };
  return {
      .surface = area,
      .red = box(28),
      .green = box(52),
      .blue = box(76),
      .preview = {boxesLeft, area.top + scale(100), boxesLeft + scale(64), buttonsTop},
      .reset = below(-52, 0, {60, 22}),
      .value = below(16, 0, {48, 22}),
      .effectList = below(-52, 28, {116, 256}),
      .apply = below(4, 58, {60, 22}),
  };
}

}  // namespace quillhue
