#include <algorithm>
#include <array>
#include <span>
#include <string>

#include "commands/command_ids.h"
#include "ui/support/ui_test.h"
#include "ui/win32/system.h"
// This needs the system's header before it.
#include <psapi.h>

namespace quillhue {
namespace {

class Start : public UiTest {
 protected:
  static void expectIntroScreen(const Program& program) {
    EXPECT_TRUE(program.button(L"Blank"));
    EXPECT_FALSE(tabControl(program));
    EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  }
};

TEST_F(Start, ShowsTheIntroScreen) {
  const Program program;
  expectIntroScreen(program);
  EXPECT_EQ(statusText(program), L"");
  EXPECT_EQ(statusText(program, 2), L"Version 4.2");
  program.start(command_id::kExit);
  EXPECT_EQ(program.awaitEnd(), 0U);
}

// These libraries load many others and are needed only later.
TEST_F(Start, LoadsNoLibraryOfDialogs) {
  const Program program;
  const auto isLoaded = [&](const std::wstring& wanted) {
    std::array<HMODULE, 256> modules{};
    DWORD size = 0;
    EXPECT_TRUE(K32EnumProcessModules(program.process(), modules.data(), sizeof(modules), &size));
    return std::ranges::any_of(std::span(modules).first(size / sizeof(HMODULE)), [&](HMODULE module) {
      std::array<wchar_t, 64> name{};
      K32GetModuleBaseNameW(program.process(), module, name.data(), static_cast<DWORD>(name.size()));
      return lstrcmpiW(name.data(), wanted.c_str()) == 0;
    });
  };
  EXPECT_TRUE(isLoaded(L"comctl32.dll"));
  EXPECT_FALSE(isLoaded(L"comdlg32.dll"));
}

TEST_F(Start, OpensTheFileOfTheCommandLine) {
  const Program program({paletteFile("with blank.pal", brightPalette(5)), L"not this"});
  program.awaitTitle(L"Quillhue - with blank.pal");
  HWND tabs = program.await("the editor", [&] { return tabControl(program); });
  EXPECT_FALSE(findControl(program.window(), L"Button", L"Blank"));
  EXPECT_EQ(statusText(program), L"5 entries");
  EXPECT_EQ(program.ask(tabs, TCM_GETCURSEL), 0);
  EXPECT_EQ(focusOf(program), tabs);
  program.post(program.window(), WM_SYSCOMMAND, SC_CLOSE);
  EXPECT_EQ(program.awaitEnd(), 0U);
}

TEST_F(Start, ShowsTheIntroScreenIfTheFileCantBeOpened) {
  const Program program({folder_.file("empty.pal", {})});
  EXPECT_EQ(answerMessage(program, L"Error", IDOK), L"This palette file is too small.");
  expectIntroScreen(program);
  program.close();
}

}  // namespace
}  // namespace quillhue
