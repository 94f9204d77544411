#include <gtest/gtest.h>

#include <vector>

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

TEST(WindowSize, MovesTheEdgeThatIsDragged) {
  const Rect small{100, 200, 300, 400};
  const struct {
    SizingEdge edge;
    Rect kept;
  } cases[] = {
      {SizingEdge::left, {-136, 200, 300, 400}},       {SizingEdge::right, {100, 200, 536, 400}},
      {SizingEdge::top, {100, 24, 300, 400}},          {SizingEdge::topLeft, {-136, 24, 300, 400}},
      {SizingEdge::topRight, {100, 24, 536, 400}},     {SizingEdge::bottom, {100, 200, 300, 576}},
      {SizingEdge::bottomLeft, {-136, 200, 300, 576}}, {SizingEdge::bottomRight, {100, 200, 536, 576}},
  };
  for (const auto& [edge, kept] : cases) {
    EXPECT_EQ(keepMinimum(small, edge, {96}), kept) << static_cast<int>(edge);
    const Rect least{100, 200, 536, 576};
    EXPECT_EQ(keepMinimum(least, edge, {96}), least) << static_cast<int>(edge);
  }
  EXPECT_EQ(static_cast<int>(SizingEdge::bottomRight), 8);
  EXPECT_EQ(keepMinimum({0, 0, 535, 700}, SizingEdge::topRight, {120}), (Rect{0, 0, 545, 700}));
}

TEST(FrameLayout, LeavesAMarginAroundTheTabs) {
  const Rect screen = screenArea({860, 690}, 23);
  EXPECT_EQ(screen, (Rect{0, 0, 860, 667}));
  EXPECT_EQ(frameArea(screen, {96}), (Rect{4, 4, 856, 663}));
  EXPECT_EQ(frameArea(screen, {144}), (Rect{6, 6, 854, 661}));
  const std::array<Rect, 4> background{{{0, 0, 5, 667}, {5, 0, 855, 5}, {855, 0, 860, 667}, {5, 662, 855, 667}}};
  EXPECT_EQ(frameBackground(screen, {96}), background);
  const std::array<Rect, 4> strips{{{0, 0, 4, 667}, {4, 0, 856, 4}, {856, 0, 860, 667}, {4, 663, 856, 667}}};
  EXPECT_EQ(stripsAround(screen, frameArea(screen, {96})), strips);
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

TEST(IntroLayout, PaintsAroundTheButtons) {
  for (const Size screen : {Size{420, 297}, Size{421, 298}, Size{300, 150}, Size{60, 50}, Size{0, 0}}) {
    std::vector<int> painted(static_cast<std::size_t>(screen.width) * static_cast<std::size_t>(screen.height));
    const auto at = [&](std::int32_t x, std::int32_t y) -> int& {
      return painted[static_cast<std::size_t>(y) * static_cast<std::size_t>(screen.width) +
                     static_cast<std::size_t>(x)];
    };
    for (const Rect& box : introBackground(screen, {96})) {
      for (std::int32_t y = box.top; y < box.bottom; ++y) {
        for (std::int32_t x = box.left; x < box.right; ++x) {
          ++at(x, y);
        }
      }
    }
    int wrong = 0;
    for (std::int32_t y = 0; y < screen.height; ++y) {
      for (std::int32_t x = 0; x < screen.width; ++x) {
        int wanted = 1;
        for (const IntroButton& button : introButtons()) {
          wanted -= introButtonBox(button, screen, {96}).contains({x, y}) ? 1 : 0;
        }
        wrong += at(x, y) == wanted ? 0 : 1;
      }
    }
    EXPECT_EQ(wrong, 0) << screen.width << ' ' << screen.height;
  }
}

TEST(IntroLayout, OffersFiveWaysToStart) {
  const struct {
    const char* text;
    const char* icon;
    const char* tooltip;
    std::int32_t command;
  } cases[] = {
      {"Blank", "SUBLANKBMP", "New blank palette...", 1},
      {"16", "SU16BMP", "New Windows 4-bit palette. Right-click for more options.", 9},
      {"Grey", "SUGREYBMP", "New greyscale palette...", 11},
      {"RGB", "SURGBBMP", "New RGB palette...", 12},
      {"Open", "SULOADBMP", "Open palette...", 13},
  };
  ASSERT_EQ(introButtons().size(), std::size(cases));
  for (std::size_t i = 0; i < std::size(cases); ++i) {
    const IntroButton& button = introButtons()[i];
    EXPECT_EQ(button.text, cases[i].text);
    EXPECT_EQ(button.icon, cases[i].icon);
    EXPECT_EQ(button.tooltip, cases[i].tooltip);
    EXPECT_EQ(button.command, cases[i].command);
  }
  EXPECT_EQ(systemPalettesButton().text, "16");
}

}  // namespace
}  // namespace quillhue
