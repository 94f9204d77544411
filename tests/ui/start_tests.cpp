#include "ui/logic/command_ids.h"
#include "ui/logic/window_texts.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Start : public UiTest {};

bool showsIntroScreen(const Program& program) { return findControl(program.window(), L"Button", L"Blank") != nullptr; }
bool showsEditor(const Program& program) { return tabControl(program) != nullptr; }

TEST_F(Start, ShowsTheIntroScreen) {
  Program program;
  EXPECT_EQ(textOf(program.window()), kWelcomeTitle);
  EXPECT_TRUE(showsIntroScreen(program));
  EXPECT_FALSE(showsEditor(program));
  EXPECT_EQ(statusText(program, 0), L"");
  EXPECT_EQ(statusText(program, 2), L"Version 4.2");
  program.close();
}

TEST_F(Start, OpensTheFileOfTheCommandLine) {
  const std::wstring file = paletteFile("with blank.pal", brightPalette(5));
  Program program({file, L"not this"});
  program.awaitTitle(L"Quillhue - with blank.pal");
  program.await("the editor", [&] { return showsEditor(program); });
  EXPECT_FALSE(showsIntroScreen(program));
  EXPECT_EQ(statusText(program, 0), L"5 entries");
  EXPECT_EQ(chosenPage(program), 0);
  EXPECT_EQ(focusOf(program), tabControl(program));
  program.close();
}

TEST_F(Start, TellsThatTheFileCantBeOpened) {
  const struct {
    std::wstring file;
    std::wstring message;
  } kCases[] = {
      {folder_.name("missing.pal"), L"Could not open the file."},
      {folder_.file("unknown.xyz", bytesOf("nothing of the kind")), L"Quillhue could not recognise this file type."},
      {folder_.file("empty.pal", {}), L""},
  };
  for (const auto& [file, message] : kCases) {
    SCOPED_TRACE(narrow(file));
    Program program({file});
    const std::wstring shown = answerMessage(program, L"Error", IDOK);
    if (message.empty()) {
      EXPECT_NE(shown, L"");
    } else {
      EXPECT_EQ(shown, message);
    }
    program.await("the intro screen", [&] { return showsIntroScreen(program); });
    EXPECT_EQ(textOf(program.window()), kWelcomeTitle);
    program.close();
  }
}

TEST_F(Start, EndsByTheMenuAndByTheWindow) {
  Program byMenu;
  byMenu.start(command_id::kExit);
  EXPECT_EQ(byMenu.awaitEnd(), 0U);
  Program byWindow;
  byWindow.post(byWindow.window(), WM_SYSCOMMAND, SC_CLOSE);
  EXPECT_EQ(byWindow.awaitEnd(), 0U);
}

}  // namespace
}  // namespace quillhue
