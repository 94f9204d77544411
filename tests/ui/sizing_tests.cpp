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

  static Rect dragged(const Program& program, const Rect& window, SizingEdge edge) {
    // The system carries the box of this message from one process to the other and back.
    RECT box{window.left, window.top, window.right, window.bottom};
    EXPECT_EQ(program.ask(program.window(), WM_SIZING, static_cast<WPARAM>(edge), reinterpret_cast<LPARAM>(&box)),
              TRUE);
    return fromSystem(box);
  }
  // What the window shows once it stays the same: the display has it some time after it is painted.
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
  // The box around all pixels that are not the same in two pictures of this width.
  static Rect difference(const std::vector<std::uint32_t>& one, const std::vector<std::uint32_t>& other,
                         std::int32_t width) {
    Rect box;
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(one.size()); ++i) {
      const auto at = static_cast<std::size_t>(i);
      if (one[at] != other.at(at)) {
        const Rect pixel = boxAt({i % width, i / width}, {1, 1});
        box = box.isEmpty()
                  ? pixel
                  : Rect{std::min(box.left, pixel.left), box.top, std::max(box.right, pixel.right), pixel.bottom};
      }
    }
    return box;
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
    const Size client = clientSize(window);
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
              (Rect{gap, gap, clientSize(editor.window()).width - gap, statusBarBox(editor).top - gap}));
  }
}

// However a window got its size, it looks as if it were painted anew.
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
      EXPECT_EQ(difference(shown, settledPixels(editor), clientSize(editor.window()).width), Rect{})
          << page << ' ' << size.width << ' ' << size.height;
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
  EXPECT_EQ(storedSettings()["Window height"], storedNumber(size.height));
}

TEST_F(Sizing, LayoutShowsTheCurrentEntryInTheSmallestCells) {
  Palette palette = brightPalette(1024);
  const std::vector<PaletteEntry> colors{{0, 0, 0}, {255, 255, 255}, {128, 128, 128}};
  for (std::int32_t i = 0; i < 3; ++i) {
    palette.setEntry(i, colors[static_cast<std::size_t>(i)]);
  }
  const Editor editor(paletteFile("large.gpl", palette));
  editor.resize(least_);
  tabTo(editor, editor.gridWindow());
  pressKey(VK_HOME);
  for (std::int32_t i = 0; i < 3; ++i) {
    editor.await("the mark of entry " + std::to_string(i), [&] {
      std::set<PaletteEntry> shown;
      const Rect cell = editor.grid().cellBox(i);
      for (std::int32_t offset = 0; offset < cell.width(); ++offset) {
        shown.insert(pixelOf(editor.gridWindow(), {cell.left + offset, middleOf(cell).y}));
      }
      return shown.contains({0, 0, 0}) && shown.contains({255, 255, 255}) &&
             shown.contains(colors[static_cast<std::size_t>(i)]);
    });
    pressKey(VK_RIGHT);
  }
}

}  // namespace
}  // namespace quillhue
