#include <set>

#include "commands/command_ids.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Frame : public UiTest {
 protected:
  // Returns the controls that the Tab key must reach; of a group of radio buttons, the chosen one. Each must have a
  // name: its own text or the static text before it.
  static std::set<HWND> namedTabStops(const Program& program) {
    std::set<HWND> stops;
    std::wstring textBefore;
    for (HWND control : findControls(program.window())) {
      const std::wstring kind = windowClass(control);
      const auto style = GetWindowLongPtrW(control, GWL_STYLE);
      const auto type = style & BS_TYPEMASK;
      const bool isRadio = kind == L"Button" && (type == BS_RADIOBUTTON || type == BS_AUTORADIOBUTTON);
      if ((style & WS_TABSTOP) != 0 && !isRadio && IsWindowEnabled(control) != 0) {
        stops.insert(control);
        // A tab control needs no name, because its tabs have names.
        EXPECT_TRUE(!textBefore.empty() || !textOf(control).empty() || control == tabControl(program))
            << "a " << narrow(kind) << " without a name";
      }
      if (kind == L"Static") {
        textBefore = textOf(control);
      } else if (kind != L"msctls_updown32") {
        textBefore.clear();
      }
    }
    return stops;
  }
};

TEST_F(Frame, UndoesAndRedoesOnEveryPage) {
  const Editor& editor = open(brightPalette(5));
  const auto awaitEntries = [&](const std::wstring& count) {
    editor.awaitEqual(count, [&] { return statusText(editor); });
  };
  for (const int page : {kValuesPage, kEffectsPage, kUsePage}) {
    SCOPED_TRACE(page);
    editor.choosePage(page);
    editor.start(command_id::kResize);
    const Dialog dialog(editor, L"Palette size");
    dialog.type(NEW_SIZE, L"40");
    dialog.answer(IDOK);
    awaitEntries(L"40 entries");
    activate(editor);
    pressKey('Z', {VK_CONTROL});
    awaitEntries(L"5 entries");
    pressKey('Y', {VK_CONTROL});
    awaitEntries(L"40 entries");
    editor.run(command_id::kUndo);
    EXPECT_FALSE(isOffered(editor, command_id::kUndo));
    EXPECT_TRUE(isOffered(editor, command_id::kRedo));
  }
  EXPECT_EQ(show(editor.saved()), show(brightPalette(5)));
  editor.close();
}

TEST_F(Frame, TellsTheAverageOfTheColors) {
  const Editor& editor = open(createPalette(4, {10, 20, 30}));
  editor.start(command_id::kAverageColor);
  EXPECT_EQ(answerMessage(editor, L"Quillhue", IDOK), L"Average red: 10\nAverage green: 20\nAverage blue: 30");
}

TEST_F(Frame, ShowsAbout) {
  const Program program;
  program.start(command_id::kAbout);
  const Dialog dialog(program, L"About Quillhue");
  EXPECT_NE(dialog.text().find(L"Version 4.2"), std::wstring::npos);
  // The open dialog disables the window.
  EXPECT_FALSE(IsWindowEnabled(program.window()));
  program.run(command_id::kNewWindows);
  EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  dialog.answer(IDOK);
  program.await("the window", [&] { return IsWindowEnabled(program.window()) != 0; });
  program.close();
}

TEST_F(Frame, GivesTheFocusBack) {
  const Editor& editor = open(brightPalette(5));
  HWND field = findControls(editor.window(), L"Edit")[1];
  tabTo(editor, field);
  editor.ask(editor.window(), WM_SYSCOMMAND, SC_MINIMIZE);
  editor.await("the minimised window", [&] { return IsIconic(editor.window()) != 0; });
  editor.ask(editor.window(), WM_SYSCOMMAND, SC_RESTORE);
  activate(editor);
  editor.awaitEqual(field, [&] { return focusOf(editor); });
}

TEST_F(Frame, ShowsTheManual) {
  const Program program;
  program.start(command_id::kReadMe);
  HWND manual = program.await("a program for texts", [] { return FindWindowW(L"Notepad", nullptr); });
  EXPECT_FALSE(program.topWindow(kDialogClass));
  PostMessageW(manual, WM_CLOSE, 0, 0);
  program.close();
}

TEST_F(Frame, PagesKeepTheirStateAndAreReachedByTheTabKey) {
  const Editor& editor = open(brightPalette(16));
  HWND models = editor.control(L"ComboBox");
  for (const int page : {kEffectsPage, kUsePage, kValuesPage}) {
    SCOPED_TRACE(page);
    editor.choosePage(page);
    EXPECT_EQ(IsWindowVisible(models) != 0, page == kValuesPage);
    EXPECT_EQ(editor.ask(models, CB_GETCURSEL), 4);
    const std::set<HWND> expected = namedTabStops(editor);
    EXPECT_GT(expected.size(), 2U);
    activate(editor);
    std::set<HWND> reached;
    for (std::size_t i = 0; i < expected.size() + 4; ++i) {
      HWND before = focusOf(editor);
      reached.insert(before);
      pressKey(VK_TAB);
      editor.await("the focus to go on", [&] { return focusOf(editor) != before; });
    }
    for (HWND control : expected) {
      EXPECT_TRUE(reached.contains(control))
          << "no Tab to " << narrow(windowClass(control)) << " \"" << narrow(textOf(control)) << '"';
    }
  }
  editor.close();
}

}  // namespace
}  // namespace quillhue
