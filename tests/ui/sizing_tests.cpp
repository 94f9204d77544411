#include <algorithm>
#include <set>

#include "core/utf8.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/intro_layout.h"
#include "ui/logic/window_size.h"
#include "ui/support/input.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Sizing : public UiTest {
 protected:
  const Scale scale_ = Scale{screenDpi()};
  const Size least_ = minimumWindowSize(scale_);

  // Returns the window's pixels once they no longer change. The display shows them some time after they are painted.
  static std::vector<std::uint32_t> settledPixels(const Program& program) {
    constexpr int kLooks = 12;
    program.awaitInput();
    std::vector<std::uint32_t> last;
    int same = 0;
    program.await("a picture that stays", [&] {
      auto now = pixelsOf(program.window());
      same = now == last ? same + 1 : 0;
      last = std::move(now);
      return same >= kLooks;
    });
    return last;
  }
  static Rect statusBarBox(const Program& program) { return boxInParent(program.control(L"msctls_statusbar32")); }
};

TEST_F(Sizing, StopsAtTheLeastSize) {
  const Program program;
  // The system copies the box of this message between the processes.
  RECT box{300, 200, 310, 220};
  program.ask(program.window(), WM_SIZING, WMSZ_TOPLEFT, reinterpret_cast<LPARAM>(&box));
  EXPECT_EQ(fromSystem(box), (Rect{310 - least_.width, 220 - least_.height, 310, 220}));
}

TEST_F(Sizing, LayoutOfTheIntroScreenFollowsTheWindow) {
  const Program program;
  HWND window = program.window();
  const PaletteEntry background = systemColor(COLOR_BTNFACE);
  for (const Size size : {least_, Size{least_.width + 201, least_.height + 83}, least_}) {
    program.resize(size);
    const Size client = clientSize(window);
    const Rect bar = statusBarBox(program);
    EXPECT_EQ(bar, (Rect{0, client.height - bar.height(), client.width, client.height}));
    // The background around the buttons is painted, and the buttons show their icons.
    program.awaitEqual(background, [&] { return pixelOf(window, {client.width / 2, 5}); });
    for (const IntroButton& each : introButtons()) {
      SCOPED_TRACE(each.text);
      HWND button = program.button(fromUtf8(each.text).c_str());
      const Rect box = boxInParent(button);
      EXPECT_EQ(box, introButtonBox(each, {client.width, client.height - bar.height()}, scale_));
      EXPECT_EQ(pixelOf(window, {box.left - 1, box.top + 10}), background);
      std::set<PaletteEntry> colors;
      for (std::int32_t i = 0; i < box.width(); ++i) {
        colors.insert(pixelOf(button, {i, i}));
      }
      EXPECT_GT(colors.size(), 3U);
    }
  }
}

TEST_F(Sizing, LayoutOfTheEditorFollowsTheWindow) {
  const Editor& editor = open(brightPalette(16));
  const std::int32_t gap = scale_.dpi == 144 ? 6 : 4;
  const Size first = outerSizeOf(editor.window());
  for (const Size size : {first, least_, Size{least_.width + 333, least_.height + 101}}) {
    editor.resize(size);
    EXPECT_EQ(boxInParent(tabControl(editor)),
              (Rect{gap, gap, clientSize(editor.window()).width - gap, statusBarBox(editor).top - gap}));
  }
}

// After any change of its size, the window looks as if painted anew.
TEST_F(Sizing, LayoutLeavesNothingBehind) {
  const Editor& editor = open(brightPalette(256));
  for (const int page : {kValuesPage, kEffectsPage, kUsePage}) {
    editor.choosePage(page);
    if (page == kUsePage) {
      tabTo(editor, editor.control(L"QuillhueImage"));
    }
    Size size{least_.width + 240, least_.height + 240};
    for (const Point step :
         {Point{-3, 0}, {-40, -7}, {60, 31}, {-80, -50}, {9, 100}, {0, -130}, {-186, -184}, {5, 5}}) {
      size = {size.width + step.x, size.height + step.y};
      editor.resize(size);
      const auto shown = settledPixels(editor);
      RedrawWindow(editor.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
      const auto expected = settledPixels(editor);
      const auto at = std::ranges::mismatch(shown, expected).in1 - shown.begin();
      const std::int32_t width = clientSize(editor.window()).width;
      EXPECT_TRUE(shown == expected) << "page " << page << ", " << size.width << " by " << size.height
                                     << ": the first difference is at " << at % width << ',' << at / width;
    }
  }
}

TEST_F(Sizing, AMaximisedWindowKeepsItsRestoredSize) {
  const Program program;
  const Size size = outerSizeOf(program.window());
  program.ask(program.window(), WM_SYSCOMMAND, SC_MAXIMIZE);
  EXPECT_NE(outerSizeOf(program.window()), size);
  program.close();
  EXPECT_EQ(storedSettings()["Window width"], storedNumber(size.width));
}

TEST_F(Sizing, LayoutShowsTheCurrentEntryInTheSmallestCells) {
  const std::vector<PaletteEntry> colors{{0, 0, 0}, {255, 255, 255}, {128, 128, 128}};
  Palette palette = brightPalette(1024);
  for (std::size_t i = 0; i < colors.size(); ++i) {
    palette.setEntry(static_cast<std::int32_t>(i), colors[i]);
  }
  const Editor editor(paletteFile("large.gpl", palette));
  editor.resize(least_);
  tabTo(editor, editor.gridWindow());
  pressKey(VK_HOME);
  for (std::int32_t i = 0; i < 3; ++i) {
    editor.await("the mark of entry " + std::to_string(i), [&] {
      std::set<PaletteEntry> shown;
      const Rect cell = editor.grid().cellBox(i);
      for (std::int32_t x = cell.left; x < cell.right; ++x) {
        shown.insert(pixelOf(editor.gridWindow(), {x, middleOf(cell).y}));
      }
      return shown.contains(colors[0]) && shown.contains(colors[1]) && shown.contains(palette.entry(i));
    });
    pressKey(VK_RIGHT);
  }
}

}  // namespace
}  // namespace quillhue
