#include <array>
#include <map>

#include "core/system_palettes.h"
#include "core/utf8.h"
#include "ui/logic/intro_layout.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"
#include "ui/win32/system.h"

namespace quillhue {
namespace {

class Intro : public UiTest {
 protected:
  static HWND button(const Program& program, const IntroButton& button) {
    return program.button(fromUtf8(button.text).c_str());
  }
};

TEST_F(Intro, ButtonsDoTheirCommands) {
  const struct {
    const wchar_t* button;
    const wchar_t* dialog;
  } kCases[] = {{L"Blank", L"New palette properties"},
                {L"Grey", L"Palette size"},
                {L"RGB", L"New palette properties"},
                {L"Open", L"Open"}};
  const Program program;
  for (const auto& [button, dialog] : kCases) {
    program.click(button);
    Dialog(program, dialog).answer(IDCANCEL);
    EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  }
  program.click(L"16");
  program.awaitTitle(L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program), L"16 entries");
  program.close();
}

TEST_F(Intro, OffersSystemPalettesOnTheSixteenAlone) {
  const Program program;
  HWND sixteen = program.button(L"16");
  const Rect box = boxOnScreen(sixteen);
  // Beside it nothing opens. The click on a corner comes after, so what the others did is known by then.
  for (const Point point : {middleOf(boxOnScreen(program.button(L"Blank"))), Point{box.left - 1, box.top},
                            Point{box.left, box.bottom + 1}, Point{box.right + 1, box.bottom - 1}}) {
    clickAt(program, point, Button::right);
  }
  clickAt(program, {box.right - 1, box.bottom - 1}, Button::right);
  const auto items = openMenu(program);
  ASSERT_EQ(items.size(), systemPalettes().size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(items[i].command, systemPalettes()[i].commandId);
    EXPECT_EQ(narrow(items[i].text), systemPalettes()[i].menuText);
    EXPECT_TRUE(items[i].isEnabled);
  }
  closeMenu(program);
  // By the keyboard, on the second item.
  tabTo(program, sixteen);
  pressKey(VK_APPS);
  EXPECT_EQ(openMenu(program).size(), systemPalettes().size());
  pressKey(VK_DOWN);
  pressKey(VK_DOWN);
  pressKey(VK_RETURN);
  program.awaitTitle(L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program), L"4 entries");
  program.close();
}

TEST_F(Intro, ButtonsHaveTooltips) {
  const Program program;
  std::map<HWND, std::wstring> tooltips;
  for (HWND window : program.windows()) {
    if (windowClass(window) != TOOLTIPS_CLASSW) {
      continue;
    }
    std::array<wchar_t, 1024> text{};
    const ProgramMemory memory(program, text.data(), sizeof(text));
    TTTOOLINFOW info{};
    info.cbSize = sizeof(info);
    info.lpszText = reinterpret_cast<wchar_t*>(memory.address());
    if (program.askAbout(window, TTM_ENUMTOOLSW, 0, info) != 0) {
      memory.read(text.data(), sizeof(text));
      tooltips[reinterpret_cast<HWND>(info.uId)] = text.data();
    }
  }
  for (const IntroButton& each : introButtons()) {
    EXPECT_EQ(narrow(tooltips[button(program, each)]), each.tooltip) << each.text;
  }
  // One of them really appears.
  activate(program);
  moveTo(program, middleOf(boxOnScreen(program.button(L"Grey"))));
  program.await("a tooltip to appear", [&] { return program.topWindow(TOOLTIPS_CLASSW); });
}

}  // namespace
}  // namespace quillhue
