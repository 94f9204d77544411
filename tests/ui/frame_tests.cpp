#include <set>

#include "ui/logic/command_ids.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Frame : public UiTest {
 protected:
  static void resizeTo(const Program& program, const wchar_t* size) {
    program.start(command_id::kResize);
    const Dialog dialog(program, L"Palette size");
    dialog.type(NEW_SIZE, size);
    dialog.answer(IDOK);
  }
};

TEST_F(Frame, UndoesAndRedoesOnEveryPage) {
  const std::wstring file = paletteFile("own.pal", brightPalette(5));
  Program program({file});
  program.await("the editor", [&] { return tabControl(program); });
  for (int page = 0; page < 3; ++page) {
    SCOPED_TRACE(page);
    if (page != 0) {
      choosePage(program, page);
    }
    resizeTo(program, L"40");
    program.await("the size", [&] { return statusText(program, 0) == L"40 entries"; });
    activate(program);
    pressKey('Z', {VK_CONTROL});
    program.await("the size of before", [&] { return statusText(program, 0) == L"5 entries"; });
    pressKey('Y', {VK_CONTROL});
    program.await("the size again", [&] { return statusText(program, 0) == L"40 entries"; });
    program.run(command_id::kUndo);
    EXPECT_FALSE(isOffered(program, command_id::kUndo));
    EXPECT_TRUE(isOffered(program, command_id::kRedo));
  }
  EXPECT_EQ(show(savedPalette(program, file)), show(brightPalette(5)));
  program.close();
}

TEST_F(Frame, TellsCountAndAverageOfTheColors) {
  Palette palette = createPalette(4, {10, 20, 30});
  palette.setEntry(3, {14, 20, 31});
  Program program({paletteFile("own.pal", palette)});
  program.await("the editor", [&] { return tabControl(program); });
  program.start(command_id::kCountColors);
  EXPECT_EQ(answerMessage(program, L"Quillhue", IDOK), L"2 different entries found in the palette.");
  program.start(command_id::kAverageColor);
  EXPECT_EQ(answerMessage(program, L"Quillhue", IDOK), L"Average red: 11\nAverage green: 20\nAverage blue: 30");
  EXPECT_FALSE(isOffered(program, command_id::kUndo));
  program.close();
}

TEST_F(Frame, PagesKeepTheirState) {
  Program program({paletteFile("own.pal", brightPalette(16))});
  program.await("the editor", [&] { return tabControl(program); });
  HWND models = program.await("the list of models", [&] { return findControl(program.window(), L"ComboBox"); });
  const auto before = program.ask(models, CB_GETCURSEL);
  EXPECT_EQ(before, 4);
  for (const int page : {1, 2, 0}) {
    choosePage(program, page);
    EXPECT_EQ(IsWindowVisible(models) != 0, page == 0);
  }
  EXPECT_EQ(program.ask(models, CB_GETCURSEL), before);
  program.close();
}

TEST_F(Frame, ShowsAbout) {
  Program program;
  program.start(command_id::kAbout);
  const Dialog dialog(program, L"About Quillhue");
  EXPECT_NE(dialog.text().find(L"Version 4.2"), std::wstring::npos);
  // Meanwhile the window can't be used.
  EXPECT_FALSE(IsWindowEnabled(program.window()));
  program.run(command_id::kNewWindows);
  EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  dialog.answer(IDOK);
  program.await("the window", [&] { return IsWindowEnabled(program.window()) != 0; });
  program.close();
}

// Keys reach what can be used, each of which has a name: its own text, or that of the static text before it.
TEST_F(Frame, ControlsAreReachedByTheTabKeyAndHaveNames) {
  Program program({paletteFile("own.pal", brightPalette(16))});
  program.await("the editor", [&] { return tabControl(program); });
  activate(program);
  for (int page = 0; page < 3; ++page) {
    if (page != 0) {
      choosePage(program, page);
    }
    std::set<HWND> expected;
    std::wstring textBefore;
    for (HWND control : windowsIn(program.window())) {
      if (GetAncestor(control, GA_PARENT) != program.window()) {
        continue;
      }
      const bool isStop = (GetWindowLongPtrW(control, GWL_STYLE) & WS_TABSTOP) != 0;
      // Of radio buttons the chosen one stands for all.
      const auto kind = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
      const bool isButton = windowClass(control) == L"Button";
      const bool isRadio = isButton && (kind == BS_RADIOBUTTON || kind == BS_AUTORADIOBUTTON);
      if (isStop && !isRadio && IsWindowVisible(control) != 0 && IsWindowEnabled(control) != 0) {
        expected.insert(control);
        // A tab control goes by the names of its tabs.
        EXPECT_TRUE(!textBefore.empty() || !textOf(control).empty() || control == tabControl(program))
            << "page " << page << ": a " << narrow(windowClass(control)) << " without a name";
      }
      if (windowClass(control) == L"Static") {
        textBefore = textOf(control);
      } else if (windowClass(control) != L"msctls_updown32") {
        textBefore.clear();
      }
    }
    EXPECT_GT(expected.size(), 2U);
    std::set<HWND> reached;
    for (std::size_t i = 0; i < expected.size() + 4; ++i) {
      HWND before = focusOf(program);
      reached.insert(before);
      pressKey(VK_TAB);
      program.await("the focus to go on", [&] { return focusOf(program) != before; });
    }
    for (HWND control : expected) {
      EXPECT_TRUE(reached.contains(control)) << "page " << page << ": no Tab to " << narrow(windowClass(control))
                                             << " \"" << narrow(textOf(control)) << '"';
    }
  }
}

}  // namespace
}  // namespace quillhue
