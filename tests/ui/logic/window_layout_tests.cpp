#include <gtest/gtest.h>

#include "ui/logic/frame_layout.h"
#include "ui/logic/intro_layout.h"
#include "ui/logic/window_size.h"

namespace quillhue {
namespace {

TEST(WindowSize, ScalesWithTheScreen) {
  EXPECT_EQ(minimumWindowSize({96}), (Size{436, 376}));
  EXPECT_EQ(defaultWindowSize({96}), (Size{872, 752}));
  EXPECT_EQ(minimumWindowSize({144}), (Size{654, 564}));
  // 436 * 110 / 96 = 499.6, 376 * 110 / 96 = 430.8: doubled after they are truncated.
  EXPECT_EQ(defaultWindowSize({110}), (Size{998, 860}));
}

TEST(FrameLayout, LeavesAMarginAroundTheTabs) {
  const Rect screen = screenArea({860, 690}, 23);
  EXPECT_EQ(screen, (Rect{0, 0, 860, 667}));
  EXPECT_EQ(frameArea(screen, {96}), (Rect{4, 4, 856, 663}));
  EXPECT_EQ(frameArea(screen, {144}), (Rect{6, 6, 854, 661}));
  const std::array<Rect, 4> background{{{0, 0, 5, 667}, {5, 0, 855, 5}, {855, 0, 860, 667}, {5, 662, 855, 667}}};
  EXPECT_EQ(frameBackground(screen, {96}), background);
  EXPECT_EQ(statusPartEdges({96}), (std::array<std::int32_t, 3>{80, 160, 392}));
  EXPECT_EQ(statusPartEdges({120}), (std::array<std::int32_t, 3>{100, 200, 490}));
  EXPECT_EQ(fontHeight({96}), -12);
  EXPECT_EQ(fontHeight({110}), -13);
}

TEST(IntroLayout, PutsTheButtonsInTheMiddle) {
  const struct {
    Size screen;
    std::int32_t dpi;
    Rect boxes[5];
  } cases[] = {
      {{856, 670},
       96,
       {{252, 255, 316, 319}, {348, 255, 412, 319}, {444, 255, 508, 319}, {540, 255, 604, 319}, {396, 351, 460, 415}}},
      // 80 is 120, 176 is 264, 16 is 24, 112 is 168, 32 is 48; the middle is (426, 300).
      {{853, 601},
       144,
       {{162, 180, 258, 276}, {306, 180, 402, 276}, {450, 180, 546, 276}, {594, 180, 690, 276}, {378, 324, 474, 420}}},
  };
  for (const auto& [screen, dpi, boxes] : cases) {
    for (std::size_t i = 0; i < 5; ++i) {
      EXPECT_EQ(introButtonBox(introButtons()[i], screen, {dpi}), boxes[i]) << dpi << ' ' << i;
    }
  }
  EXPECT_EQ(introButtonFace({144}), (Rect{0, 0, 96, 96}));
}

}  // namespace
}  // namespace quillhue
