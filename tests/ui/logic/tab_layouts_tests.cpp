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

TEST(ValuesLayout, PutsTheControlsBelowTheBars) {
  // The grid takes 320 + 12 of 482, so the middle of the rest is 407 (+ 20).
  const GridLayout grid(boxAt({20, 30}, {482, 340}), 256, {96});
  const ValuesLayout layout = valuesLayout(grid, {96});
  EXPECT_EQ(layout.surface, (Rect{352, 30, 502, 370}));
  EXPECT_EQ(layout.fields[0], (Rect{355, 306, 403, 328}));
  EXPECT_EQ(layout.fields[1], (Rect{403, 306, 451, 328}));
  EXPECT_EQ(layout.fields[2], (Rect{451, 306, 499, 328}));
  EXPECT_EQ(layout.modelList, (Rect{369, 336, 485, 592}));
  // At 120 dpi the middle is 427, and 64 is 80, 24 is 30, 22 is 27, 58 is 72, 34 is 42.
  const ValuesLayout large = valuesLayout(GridLayout(boxAt({}, {520, 344}), 256, {120}), {120});
  EXPECT_EQ(large.fields[0], (Rect{337, 264, 397, 291}));
  EXPECT_EQ(large.modelList, (Rect{355, 302, 500, 622}));
}

TEST(EffectsLayout, PutsTheControlsInTheMiddleOfTheRest) {
  const GridLayout grid(boxAt({20, 30}, {482, 340}), 256, {96});
  const EffectsLayout layout = effectsLayout(grid, {96});
  EXPECT_EQ(layout.surface, (Rect{20, 30, 502, 370}));
  EXPECT_EQ(layout.red, (Rect{363, 58, 427, 82}));
  EXPECT_EQ(layout.green, (Rect{363, 82, 427, 106}));
  EXPECT_EQ(layout.blue, (Rect{363, 106, 427, 130}));
  EXPECT_EQ(layout.preview, (Rect{363, 130, 427, 282}));
  EXPECT_EQ(layout.reset, (Rect{375, 282, 435, 304}));
  EXPECT_EQ(layout.value, (Rect{443, 282, 491, 304}));
  EXPECT_EQ(layout.effectList, (Rect{375, 310, 491, 566}));
  EXPECT_EQ(layout.apply, (Rect{431, 340, 491, 362}));
}

TEST(EffectsLayout, ScalesEachLengthByItself) {
  // At 120 dpi: right edge 20 * 16 + 12 + 2 = 334, the middle (334 + 520) / 2 = 427; 64 is 80, 28 is 35, 52 is 65, 88
  // is 110, 22 is 27, 58 is 72, 116 is 145.
  const GridLayout grid(boxAt({0, 0}, {520, 344}), 256, {120});
  const EffectsLayout layout = effectsLayout(grid, {120});
  EXPECT_EQ(layout.red, (Rect{347, 35, 427, 65}));
  EXPECT_EQ(layout.preview, (Rect{347, 125, 427, 234}));
  EXPECT_EQ(layout.reset, (Rect{362, 234, 437, 261}));
  EXPECT_EQ(layout.value, (Rect{447, 234, 507, 261}));
  EXPECT_EQ(layout.effectList, (Rect{362, 269, 507, 589}));
  EXPECT_EQ(layout.apply, (Rect{432, 306, 507, 333}));
}

TEST(UseLayout, PutsTheViewLeftOfTheColumn) {
  const UseLayout layout = useLayout(boxAt({20, 30}, {500, 300}), kScrollBar, {96});
  EXPECT_EQ(layout.surface, (Rect{20, 30, 520, 330}));
  EXPECT_EQ(layout.statusText, (Point{28, 38}));
  EXPECT_EQ(layout.statusArea, (Rect{20, 30, 373, 54}));
  EXPECT_EQ(layout.imageArea, (Rect{20, 30, 373, 330}));
  EXPECT_EQ(layout.view, (Rect{20, 54, 356, 313}));
  EXPECT_EQ(layout.horizontalBar, (Rect{20, 313, 356, 330}));
  EXPECT_EQ(layout.verticalBar, (Rect{356, 54, 373, 313}));
  EXPECT_EQ(layout.widthLabel, (Point{416, 192}));
  EXPECT_EQ(layout.heightLabel, (Point{416, 216}));
  EXPECT_EQ(layout.labelArea, (Rect{416, 192, 464, 234}));
  // At 144 dpi: 147 is 220, 104 is 156, 162 is 243.
  const UseLayout large = useLayout(boxAt({0, 0}, {800, 500}), {26, 26}, {144});
  EXPECT_EQ(large.view, (Rect{0, 36, 554, 474}));
  EXPECT_EQ(large.imageArea, (Rect{0, 0, 580, 500}));
  EXPECT_EQ(large.widthLabel, (Point{644, 243}));
  EXPECT_EQ(large.labelArea, (Rect{644, 243, 716, 306}));
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
        std::vector<Rect> boxes(values.fields.begin(), values.fields.end());
        boxes.push_back(closed(values.modelList, scale));
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
        expectApart({use.statusArea, use.view, use.horizontalBar, use.verticalBar, use.load, use.maintain, use.nearest,
                     use.dither, use.protectColor, use.color, use.protectGrid, use.gridWidth, use.gridHeight,
                     use.labelArea, use.process, use.saveAs},
                    area, "use " + where);
      }
    }
  }
}

}  // namespace
}  // namespace quillhue
