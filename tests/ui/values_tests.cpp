#include <windows.h>

#include "colormodes/color_models.h"
#include "ui/logic/bars_layout.h"
#include "ui/logic/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

// The first entry of the palette is the current one.
class Values : public UiTest {
 protected:
  static constexpr PaletteEntry kColor{100, 150, 200};

  Values() : file_(paletteFile("own.pal", palette(kColor))), program_({file_}) {
    program_.await("the editor", [&] { return tabControl(program_); });
  }

  static Palette palette(const PaletteEntry& first) {
    Palette result = brightPalette(20);
    result.setEntry(0, first);
    return result;
  }

  [[nodiscard]] HWND surface() const {
    for (HWND window : findControls(program_.window(), L"Static")) {
      if ((GetWindowLongPtrW(window, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW) {
        return window;
      }
    }
    throw ProgramError("no surface with bars");
  }
  // A point on a bar: where its greatest value is, its least, or between.
  [[nodiscard]] Point onBar(Bar bar, std::int32_t parts, std::int32_t ofParts) const {
    const Rect box = BarsLayout(clientSizeOf(surface()), screenScale()).barBox(bar);
    return onScreen(surface(), {(box.left + box.right) / 2, box.bottom - 1 - (box.height() - 1) * parts / ofParts});
  }
  [[nodiscard]] std::vector<HWND> fields() const { return findControls(program_.window(), L"Edit"); }
  [[nodiscard]] std::string numbers() const {
    std::string result;
    for (HWND field : fields()) {
      result += result.empty() ? "" : " ";
      result += narrow(textOf(field));
    }
    return result;
  }
  void awaitNumbers(const std::string& expected) const {
    program_.await("the numbers " + expected, [&] { return numbers() == expected; });
  }
  void expectSaved(const PaletteEntry& first) const {
    EXPECT_EQ(show(savedPalette(program_, file_)), show(palette(first)));
  }
  // One step leads back to the file's color, and there is no other.
  void expectOneStep() const {
    program_.run(command_id::kUndo);
    expectSaved(kColor);
    EXPECT_FALSE(isOffered(program_, command_id::kUndo));
  }

  std::wstring file_;
  Program program_;
};

TEST_F(Values, FollowADragOverABar) {
  awaitNumbers("100 150 200");
  drag(program_, {onBar(Bar::middle, 1, 2), onBar(Bar::middle, 1, 4), onBar(Bar::middle, 1, 1)});
  awaitNumbers("100 255 200");
  expectSaved({100, 255, 200});
  expectOneStep();
  // The pointer may leave the bar.
  const Point bottom = onBar(Bar::left, 0, 1);
  drag(program_, {onBar(Bar::left, 1, 2), {bottom.x - 40, bottom.y + 30}});
  awaitNumbers("0 150 200");
  expectOneStep();
}

TEST_F(Values, FollowTheWheel) {
  awaitNumbers("100 150 200");
  activate(program_);
  moveTo(program_, onBar(Bar::right, 1, 2));
  turnWheel(3);
  awaitNumbers("100 150 203");
  turnWheel(-5);
  awaitNumbers("100 150 198");
  moveTo(program_, onBar(Bar::left, 1, 2));
  turnWheel(200);
  awaitNumbers("255 150 198");
  turnWheel(1);
  turnWheel(-1);
  awaitNumbers("254 150 198");
  expectSaved({254, 150, 198});
}

TEST_F(Values, FollowWhatIsTyped) {
  awaitNumbers("100 150 200");
  tabTo(program_, fields()[1]);
  type("77");
  awaitNumbers("100 77 200");
  pressKey(VK_UP);
  awaitNumbers("100 78 200");
  expectSaved({100, 78, 200});
  expectOneStep();
}

TEST_F(Values, OfAnotherModelKeepTheEntry) {
  HWND models = findControl(program_.window(), L"ComboBox");
  for (std::size_t i = 0; i < colorModels().size(); ++i) {
    program_.ask(models, CB_SETCURSEL, i);
    program_.ask(program_.window(), WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE), reinterpret_cast<LPARAM>(models));
    EXPECT_FALSE(isOffered(program_, command_id::kUndo)) << colorModels()[i]->name;
    expectSaved(kColor);
  }
  // Hue 210, saturation 100 / 200, value 200.
  program_.ask(models, CB_SETCURSEL, 3);
  program_.ask(program_.window(), WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE), reinterpret_cast<LPARAM>(models));
  EXPECT_TRUE(numbers().starts_with("210 ")) << numbers();
  EXPECT_TRUE(numbers().ends_with(" 200")) << numbers();
  program_.close();
  EXPECT_EQ(storedSettings().value_or(StoredSettings{}).at("Color mode"), storedBytes({3}));
}

TEST_F(Values, ComeFromTheColorChooser) {
  constexpr int kRed = 706;
  awaitNumbers("100 150 200");
  program_.start(command_id::kEditColor);
  {
    const Dialog chooser(program_, L"Color");
    EXPECT_EQ(chooser.typed(kRed), L"100");
    chooser.answer(IDCANCEL);
  }
  expectSaved(kColor);
  program_.start(command_id::kEditColor);
  {
    const Dialog chooser(program_, L"Color");
    chooser.type(kRed, L"9");
    chooser.answer(IDOK);
  }
  awaitNumbers("9 150 200");
  expectSaved({9, 150, 200});
}

TEST_F(Values, GoToTheOtherPageAndBackByTheClipboard) {
  awaitNumbers("100 150 200");
  program_.run(command_id::kCopy);
  choosePage(program_, 1);
  program_.run(command_id::kSelectAll);
  program_.run(command_id::kPaste);
  choosePage(program_, 0);
  // What was copied is one color; the selection's other entries stay.
  expectSaved(kColor);
  program_.run(command_id::kClear);
  expectSaved({0, 0, 0});
  program_.run(command_id::kPaste);
  expectSaved(kColor);
  // Another program takes it, too.
  program_.run(command_id::kCut);
  Program other({paletteFile("other.pal", brightPalette(3))});
  other.await("the editor", [&] { return tabControl(other); });
  other.run(command_id::kPaste);
  const Palette pasted = savedPalette(other, folder_.name("other.pal"));
  EXPECT_EQ(pasted.entry(0), kColor);
}

}  // namespace
}  // namespace quillhue
