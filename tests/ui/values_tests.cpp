#include "colormodes/color_models.h"
#include "commands/command_ids.h"
#include "ui/logic/bars_layout.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

// The first entry of the palette is the current one.
class Values : public UiTest {
 protected:
  static constexpr PaletteEntry kColor{100, 150, 200};

  Values() {
    open(palette(kColor));
    awaitNumbers("100 150 200");
  }

  static Palette palette(const PaletteEntry& first) {
    Palette result = brightPalette(20);
    result.setEntry(0, first);
    return result;
  }

  // Returns a point on a bar, at this fraction of its height.
  [[nodiscard]] Point onBar(Bar bar, std::int32_t parts, std::int32_t ofParts) const {
    for (HWND surface : findControls(editor().window(), L"Static")) {
      if ((GetWindowLongPtrW(surface, GWL_STYLE) & SS_TYPEMASK) == SS_OWNERDRAW) {
        const Rect box = BarsLayout(clientSize(surface), Scale{screenDpi()}).barBox(bar);
        return onScreen(surface, {middleOf(box).x, box.bottom - 1 - (box.height() - 1) * parts / ofParts});
      }
    }
    throw ProgramError("no surface with bars");
  }
  [[nodiscard]] std::string numbers() const {
    std::string result;
    for (HWND field : findControls(editor().window(), L"Edit")) {
      result += result.empty() ? "" : " ";
      result += narrow(textOf(field));
    }
    return result;
  }
  void awaitNumbers(const std::string& expected) const {
    editor().awaitEqual(expected, [this] { return numbers(); });
  }
  void expectSaved(const PaletteEntry& first) const { EXPECT_EQ(show(editor().saved()), show(palette(first))); }
  // Expects one undo step, which restores the file's color.
  void expectOneStep() const {
    editor().run(command_id::kUndo);
    expectSaved(kColor);
    EXPECT_FALSE(isOffered(editor(), command_id::kUndo));
  }
};

TEST_F(Values, FollowADragOverABar) {
  editor().drag({onBar(Bar::middle, 1, 2), onBar(Bar::middle, 1, 4), onBar(Bar::middle, 1, 1)});
  awaitNumbers("100 255 200");
  expectSaved({100, 255, 200});
  expectOneStep();
  // The pointer may leave the bar.
  const Point bottom = onBar(Bar::left, 0, 1);
  editor().drag({onBar(Bar::left, 1, 2), {bottom.x - 40, bottom.y + 30}});
  awaitNumbers("0 150 200");
  expectOneStep();
}

TEST_F(Values, FollowTheWheel) {
  activate(editor());
  moveTo(editor(), onBar(Bar::right, 1, 2));
  turnWheel(3);
  awaitNumbers("100 150 203");
  // A touchpad reports a notch in parts.
  for (int i = 0; i < 3; ++i) {
    turnWheelBy(-40);
  }
  awaitNumbers("100 150 202");
  expectSaved({100, 150, 202});
  // A closed list without the focus keeps its choice.
  HWND models = editor().control(L"ComboBox");
  moveTo(editor(), middleOf(boxOnScreen(models)));
  turnWheel(-1);
  editor().awaitInput();
  EXPECT_EQ(editor().ask(models, CB_GETCURSEL), 4);
}

TEST_F(Values, FollowWhatIsTyped) {
  HWND field = findControls(editor().window(), L"Edit")[1];
  tabTo(editor(), field);
  type("77");
  awaitNumbers("100 77 200");
  pressKey(VK_UP);
  awaitNumbers("100 78 200");
  expectSaved({100, 78, 200});
  expectOneStep();
  // The arrows continue from the clamped number.
  editor().typeInto(field, "300");
  pressKey(VK_DOWN);
  awaitNumbers("100 254 200");
}

TEST_F(Values, LeaveTheKeysOfATextToTheField) {
  HWND field = findControls(editor().window(), L"Edit")[1];
  editor().typeInto(field, "123");
  pressKey('A', {VK_CONTROL});
  pressKey('X', {VK_CONTROL});
  awaitNumbers("100  200");
  pressKey('V', {VK_CONTROL});
  awaitNumbers("100 123 200");
  pressKey('A', {VK_CONTROL});
  pressKey(VK_DELETE);
  awaitNumbers("100  200");
  pressKey('Z', {VK_CONTROL});
  awaitNumbers("100 123 200");
  expectSaved({100, 123, 200});
  // The keys of a dialog must not act as commands, because the ids of OK and Cancel are those of new palettes.
  for (const int key : {VK_CANCEL, VK_ESCAPE, VK_RETURN, VK_EXECUTE}) {
    for (HWND control : {field, tabControl(editor())}) {
      tabTo(editor(), control);
      pressKey(key);
      editor().awaitInput();
      EXPECT_EQ(textOf(editor().window()), L"Quillhue - own.pal") << key;
      EXPECT_FALSE(editor().topWindow(kDialogClass)) << key;
    }
  }
}

TEST_F(Values, OfAnotherModelKeepTheEntry) {
  HWND models = editor().control(L"ComboBox");
  for (std::size_t i = 0; i < colorModels().size(); ++i) {
    editor().choose(models, i);
    EXPECT_EQ(narrow(textOf(models)), colorModels()[i]->name);
  }
  // Hue 210, saturation 100 / 200, value 200.
  editor().choose(models, 3);
  awaitNumbers("210 127 200");
  EXPECT_FALSE(isOffered(editor(), command_id::kUndo));
  expectSaved(kColor);
}

TEST_F(Values, ComeFromTheColorChooser) {
  constexpr int kRed = 706;
  for (const auto& [button, color] : {std::pair{IDCANCEL, kColor}, {IDOK, PaletteEntry{9, 150, 200}}}) {
    editor().start(command_id::kEditColor);
    const Dialog chooser(editor(), L"Color");
    EXPECT_EQ(chooser.typed(kRed), L"100");
    chooser.type(kRed, L"9");
    chooser.answer(button);
    expectSaved(color);
  }
  awaitNumbers("9 150 200");
}

TEST_F(Values, GoToTheOtherPageAndBackByTheClipboard) {
  editor().run(command_id::kCut);
  expectSaved({0, 0, 0});
  editor().choosePage(kEffectsPage);
  editor().run(command_id::kSelectAll);
  editor().run(command_id::kPaste);
  // Only one color was cut, so the other selected entries are unchanged.
  expectSaved(kColor);
  // Another editor pastes the first color of the copied selection.
  editor().run(command_id::kCopy);
  const Editor other(paletteFile("other.pal", brightPalette(3)));
  other.run(command_id::kPaste);
  EXPECT_EQ(other.saved().entry(0), kColor);
}

}  // namespace
}  // namespace quillhue
