#include <set>

#include "core/utf8.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/intro_layout.h"
#include "ui/logic/window_size.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Sizing : public UiTest {
 protected:
  const Scale scale_ = screenScale();
  const Size least_ = minimumWindowSize(scale_);

  static Rect dragged(const Program& program, const Rect& window, SizingEdge edge) {
    // The system carries the box of this message from one process to the other and back.
    RECT box{window.left, window.top, window.right, window.bottom};
    EXPECT_EQ(program.ask(program.window(), WM_SIZING, static_cast<WPARAM>(edge), reinterpret_cast<LPARAM>(&box)),
              TRUE);
    return boxFrom(box);
  }
  static Rect statusBarBox(const Program& program) { return boxInParent(program.control(L"msctls_statusbar32")); }
};

TEST_F(Sizing, StopsAtTheLeastSize) {
  const Program program;
  const Rect small{300, 200, 310, 220};
  const Rect large = boxAt({300, 200}, {least_.width + 1, least_.height + 1});
  const std::int32_t width = scale_(436);
  const std::int32_t height = scale_(376);
  const struct {
    SizingEdge edge;
    Rect result;
  } kCases[] = {
      {SizingEdge::left, {310 - width, 200, 310, 220}},
      {SizingEdge::right, {300, 200, 300 + width, 220}},
      {SizingEdge::top, {300, 220 - height, 310, 220}},
      {SizingEdge::bottom, {300, 200, 310, 200 + height}},
      {SizingEdge::topLeft, {310 - width, 220 - height, 310, 220}},
      {SizingEdge::topRight, {300, 220 - height, 300 + width, 220}},
      {SizingEdge::bottomLeft, {310 - width, 200, 310, 200 + height}},
      {SizingEdge::bottomRight, {300, 200, 300 + width, 200 + height}},
  };
  for (const auto& [edge, result] : kCases) {
    // The message alone may leave the sides that no edge of the drag can change.
    EXPECT_EQ(dragged(program, small, edge), result) << static_cast<int>(edge);
    EXPECT_EQ(dragged(program, large, edge), large) << static_cast<int>(edge);
  }
}

TEST_F(Sizing, LayoutOfTheIntroScreenFollowsTheWindow) {
  const Program program;
  HWND window = program.window();
  const PaletteEntry background = systemColor(COLOR_BTNFACE);
  const Size first = outerSizeOf(window);
  for (const Size size : {first, least_, Size{least_.width + 201, least_.height + 83}, least_}) {
    program.resize(size);
    const Size client = clientSizeOf(window);
    const Rect bar = statusBarBox(program);
    EXPECT_EQ(bar, (Rect{0, client.height - bar.height(), client.width, client.height}));
    EXPECT_GT(bar.height(), 0);
    // The background around the buttons is painted, and the buttons show their icons.
    program.awaitInput();
    program.awaitEqual(background, [&] { return pixelOf(window, {2, 2}); });
    EXPECT_EQ(pixelOf(window, {client.width / 2, 5}), background);
    for (const IntroButton& each : introButtons()) {
      SCOPED_TRACE(each.text);
      HWND button = program.button(fromUtf8(each.text).c_str());
      const Rect box = boxInParent(button);
      EXPECT_EQ(box, introButtonBox(each, {client.width, client.height - bar.height()}, scale_));
      EXPECT_EQ(pixelOf(window, {box.left - 1, box.top + 10}), background);
      EXPECT_EQ(pixelOf(window, {box.left + 10, box.bottom}), background);
      std::set<PaletteEntry> colors;
      for (std::int32_t i = 0; i < box.width(); i += 2) {
        colors.insert(pixelOf(button, {i, box.height() / 2}));
        colors.insert(pixelOf(button, {box.width() / 2, i}));
      }
      EXPECT_GT(colors.size(), 3U);
    }
    // The numbers that the formulas are written for, without the formulas.
    const Rect blank = boxInParent(program.button(L"Blank"));
    const bool is144 = scale_.dpi == 144;
    EXPECT_EQ(blank.width(), is144 ? 96 : 64);
    EXPECT_EQ(blank.left, client.width / 2 - (is144 ? 264 : 176));
  }
}

TEST_F(Sizing, LayoutOfTheEditorFollowsTheWindow) {
  const Editor& editor = open(brightPalette(16));
  const std::int32_t gap = scale_.dpi == 144 ? 6 : 4;
  const Size first = outerSizeOf(editor.window());
  for (const Size size : {first, least_, Size{least_.width + 333, least_.height + 101}}) {
    editor.resize(size);
    EXPECT_EQ(boxInParent(tabControl(editor)),
              (Rect{gap, gap, clientSizeOf(editor.window()).width - gap, statusBarBox(editor).top - gap}));
  }
}

}  // namespace
}  // namespace quillhue
