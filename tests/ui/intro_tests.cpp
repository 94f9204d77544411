#include "core/system_palettes.h"
#include "core/utf8.h"
#include "ui/logic/intro_layout.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Intro : public UiTest {};

TEST_F(Intro, ButtonsDoTheirCommands) {
  const Program program;
  for (const auto& [button, dialog] : {std::pair{L"Blank", L"New palette properties"},
                                       {L"Grey", L"Palette size"},
                                       {L"RGB", L"New palette properties"},
                                       {L"Open", L"Open"}}) {
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
  // A click beside the button opens nothing. Otherwise the menu of the next click would not be the first one.
  clickAt(program, middleOf(boxOnScreen(program.button(L"Blank"))), Button::right);
  clickAt(program, {box.left - 1, box.top}, Button::right);
  clickAt(program, {box.right - 1, box.bottom - 1}, Button::right);
  const auto items = openMenu(program);
  ASSERT_EQ(items.size(), systemPalettes().size());
  for (std::size_t i = 0; i < items.size(); ++i) {
    EXPECT_EQ(items[i].command, systemPalettes()[i].commandId);
    EXPECT_EQ(narrow(items[i].text), systemPalettes()[i].menuText);
    EXPECT_TRUE(items[i].isEnabled);
  }
  closeMenu(program);
  // Opens the menu by keyboard and chooses the second item. The pointer is moved away before.
  moveTo(program, middleOf(boxOnScreen(program.button(L"Blank"))));
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
  activate(program);
  for (const IntroButton& each : introButtons()) {
    moveTo(program, middleOf(boxOnScreen(program.button(fromUtf8(each.text).c_str()))));
    program.await("a tooltip with the text " + std::string(each.tooltip), [&] {
      HWND tooltip = program.topWindow(TOOLTIPS_CLASSW);
      return tooltip != nullptr && narrow(textOf(tooltip)) == each.tooltip;
    });
  }
}

}  // namespace
}  // namespace quillhue
