#include <gtest/gtest.h>

#include <vector>

#include "ui/logic/bars_layout.h"
#include "ui/logic/effects_layout.h"
#include "ui/logic/use_layout.h"
#include "ui/logic/values_layout.h"

namespace quillhue {
namespace {

constexpr Size kScrollBar{17, 17};

// What a drop-down list shows of its box while it is closed, in 1/96 inch.
constexpr std::int32_t kClosedList = 24;

Rect closed(Rect list, Scale scale) {
  list.bottom = list.top + scale(kClosedList);
  return list;
}

void expectApart(const std::vector<Rect>& boxes, const Rect& area, const std::string& where) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    const Rect& one = boxes[i];
    EXPECT_FALSE(one.isEmpty()) << where << ' ' << i;
    EXPECT_TRUE(area.contains({one.left, one.top}) && area.contains({one.right - 1, one.bottom - 1}))
        << where << ' ' << i;
    for (std::size_t j = 0; j < i; ++j) {
      const Rect& other = boxes[j];
      EXPECT_TRUE(one.right <= other.left || other.right <= one.left || one.bottom <= other.top ||
                  other.bottom <= one.top)
          << where << ' ' << i << " over " << j;
    }
  }
}

using Boxes = std::vector<Rect>;

Boxes boxesOf(const ValuesLayout& layout) {
  return {layout.surface, layout.leftField, layout.middleField, layout.rightField, layout.modelList};
}
Boxes boxesOf(const EffectsLayout& layout) {
  return {layout.red,   layout.green, layout.blue,       layout.preview,
          layout.reset, layout.value, layout.effectList, layout.apply};
}
Boxes boxesOf(const UseLayout& layout) {
  return {layout.status,     layout.imageArea,   layout.view,       layout.horizontalBar, layout.verticalBar,
          layout.load,       layout.maintain,    layout.nearest,    layout.dither,        layout.protectColor,
          layout.color,      layout.protectGrid, layout.widthLabel, layout.gridWidth,     layout.heightLabel,
          layout.gridHeight, layout.process,     layout.saveAs};
}

// Each length is scaled by itself. At 96 dpi the grid takes 320 + 12 of 482, so the middle of the rest is 407 (+ 20);
// at 120 dpi its right edge is 20 * 16 + 12 + 2 = 334, and the middle (334 + 520) / 2 = 427.
TEST(TabLayouts, ScaleWithTheScreen) {
  const GridLayout grid(boxAt({20, 30}, {482, 340}), 256, {96});
  const GridLayout large(boxAt({0, 0}, {520, 344}), 256, {120});
  EXPECT_EQ(boxesOf(valuesLayout(grid, {96})), (Boxes{{352, 30, 502, 370},
                                                      {355, 306, 403, 328},
                                                      {403, 306, 451, 328},
                                                      {451, 306, 499, 328},
                                                      {369, 336, 485, 592}}));
  EXPECT_EQ(
      boxesOf(valuesLayout(large, {120})),
      (Boxes{
          {334, 0, 520, 344}, {337, 264, 397, 291}, {397, 264, 457, 291}, {457, 264, 517, 291}, {355, 302, 500, 622}}));
  EXPECT_EQ(boxesOf(effectsLayout(grid, {96})), (Boxes{{363, 58, 427, 82},
                                                       {363, 82, 427, 106},
                                                       {363, 106, 427, 130},
                                                       {363, 130, 427, 282},
                                                       {375, 282, 435, 304},
                                                       {443, 282, 491, 304},
                                                       {375, 310, 491, 566},
                                                       {431, 340, 491, 362}}));
  EXPECT_EQ(boxesOf(effectsLayout(large, {120})), (Boxes{{347, 35, 427, 65},
                                                         {347, 65, 427, 95},
                                                         {347, 95, 427, 125},
                                                         {347, 125, 427, 234},
                                                         {362, 234, 437, 261},
                                                         {447, 234, 507, 261},
                                                         {362, 269, 507, 589},
                                                         {432, 306, 507, 333}}));
  EXPECT_EQ(effectsLayout(grid, {96}).surface, grid.area());
  EXPECT_EQ(useLayout(boxAt({20, 30}, {500, 300}), kScrollBar, {96}).surface, (Rect{20, 30, 520, 330}));
  EXPECT_EQ(boxesOf(useLayout(boxAt({20, 30}, {500, 300}), kScrollBar, {96})), (Boxes{{28, 38, 373, 54},
                                                                                      {20, 30, 373, 330},
                                                                                      {20, 54, 356, 313},
                                                                                      {20, 313, 356, 330},
                                                                                      {356, 54, 373, 313},
                                                                                      {381, 34, 441, 56},
                                                                                      {381, 60, 512, 80},
                                                                                      {381, 80, 512, 100},
                                                                                      {381, 100, 512, 120},
                                                                                      {381, 122, 512, 140},
                                                                                      {464, 140, 512, 162},
                                                                                      {381, 168, 512, 186},
                                                                                      {416, 192, 464, 212},
                                                                                      {464, 190, 512, 212},
                                                                                      {416, 216, 464, 236},
                                                                                      {464, 214, 512, 236},
                                                                                      {381, 246, 441, 268},
                                                                                      {452, 246, 512, 268}}));
  // At 144 dpi: 147 is 220, 104 is 156, 162 is 243.
  const UseLayout largest = useLayout(boxAt({0, 0}, {800, 500}), {26, 26}, {144});
  EXPECT_EQ(largest.view, (Rect{0, 36, 554, 474}));
  EXPECT_EQ(largest.imageArea, (Rect{0, 0, 580, 500}));
  EXPECT_EQ(largest.widthLabel, (Rect{644, 243, 716, 273}));
}

// The smallest area that a tab has, with thick window frames: 400 by 245 at 96 dpi.
TEST(TabLayouts, HaveRoomForEveryControl) {
  for (const std::int32_t dpi : {96, 120, 144, 192}) {
    for (const Size units : {Size{400, 245}, Size{600, 300}, Size{1500, 700}}) {
      for (const std::int32_t paletteSize : {1, 2, 256, 1024}) {
        const Scale scale{dpi};
        const Rect area = boxAt({10, 40}, scale(units));
        const GridLayout grid(area, paletteSize, scale);
        const std::string where = std::to_string(dpi) + ' ' + std::to_string(units.width);
        Rect controls = area;
        controls.left += grid.rightEdge();

        const ValuesLayout values = valuesLayout(grid, scale);
        const BarsLayout bars({values.surface.width(), values.surface.height()}, scale);
        std::vector<Rect> boxes{values.leftField, values.middleField, values.rightField,
                                closed(values.modelList, scale)};
        for (const Bar bar : kBars) {
          const Rect zone = bars.zone(bar);
          boxes.push_back(
              boxAt({values.surface.left + zone.left, values.surface.top + zone.top}, {zone.width(), zone.height()}));
        }
        expectApart(boxes, controls, "values " + where);

        const EffectsLayout effects = effectsLayout(grid, scale);
        expectApart({effects.red, effects.green, effects.blue, effects.preview, effects.reset, effects.value,
                     closed(effects.effectList, scale), effects.apply},
                    controls, "effects " + where);

        const UseLayout use = useLayout(area, scale(kScrollBar), scale);
        expectApart({use.status, use.view, use.horizontalBar, use.verticalBar, use.load, use.maintain, use.nearest,
                     use.dither, use.protectColor, use.color, use.protectGrid, use.gridWidth, use.gridHeight,
                     use.widthLabel, use.heightLabel, use.process, use.saveAs},
                    area, "use " + where);
      }
    }
  }
}

}  // namespace
}  // namespace quillhue
