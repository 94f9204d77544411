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
    return {box.left, box.top, box.right, box.bottom};
  }
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
    const Rect after = dragged(program, small, edge);
    EXPECT_EQ(after, result) << static_cast<int>(edge);
    EXPECT_EQ(dragged(program, large, edge), large) << static_cast<int>(edge);
  }
}

TEST_F(Sizing, LayoutOfTheIntroScreenFollowsTheWindow) {
  Program program;
  HWND window = program.window();
  for (const Size size : {Size{}, least_, Size{least_.width + 201, least_.height + 83}, least_}) {
    if (size.width != 0) {
      SetWindowPos(window, nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER);
    }
    const Size client = clientSizeOf(window);
    HWND statusBar = findControl(window, L"msctls_statusbar32");
    const Rect bar = boxInParent(statusBar);
    EXPECT_EQ(bar, (Rect{0, client.height - bar.height(), client.width, client.height}));
    EXPECT_GT(bar.height(), 0);
    for (const IntroButton& button : introButtons()) {
      const std::wstring text(button.text.begin(), button.text.end());
      HWND control = findControl(window, L"Button", text.c_str());
      ASSERT_NE(control, nullptr) << button.text;
      EXPECT_EQ(boxInParent(control), introButtonBox(button, {client.width, client.height - bar.height()}, scale_))
          << button.text;
    }
  }
  program.close();
}

// The numbers that the formulas are written for, without the formulas.
TEST_F(Sizing, LayoutOfTheFirstButton) {
  const Program program;
  const Size client = clientSizeOf(program.window());
  const Rect blank = boxInParent(findControl(program.window(), L"Button", L"Blank"));
  const bool is144 = scale_.dpi == 144;
  EXPECT_EQ(blank.width(), is144 ? 96 : 64);
  EXPECT_EQ(blank.left, client.width / 2 - (is144 ? 264 : 176));
}

TEST_F(Sizing, LayoutOfTheEditorFollowsTheWindow) {
  Program program({paletteFile("a.pal", brightPalette(16))});
  program.await("the editor", [&] { return tabControl(program) != nullptr; });
  HWND window = program.window();
  const std::int32_t gap = scale_.dpi == 144 ? 6 : 4;
  for (const Size size : {Size{}, least_, Size{least_.width + 333, least_.height + 101}}) {
    if (size.width != 0) {
      SetWindowPos(window, nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER);
    }
    const Size client = clientSizeOf(window);
    const Rect bar = boxInParent(findControl(window, L"msctls_statusbar32"));
    EXPECT_EQ(boxInParent(tabControl(program)), (Rect{gap, gap, client.width - gap, bar.top - gap}));
  }
  program.close();
}

}  // namespace
}  // namespace quillhue
