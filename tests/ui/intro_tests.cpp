#include <windows.h>
// Needs windows.h before it.
#include <commctrl.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/system_palettes.h"
#include "ui/logic/intro_layout.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Intro : public UiTest {
 protected:
  static HWND button(const Program& program, const wchar_t* text) {
    return program.await("the button " + narrow(text), [&] { return findControl(program.window(), L"Button", text); });
  }
  static Point middleOf(HWND window) {
    const Rect box = boxOnScreen(window);
    return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
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
  Program program;
  for (const auto& [text, dialog] : kCases) {
    clickAt(program, middleOf(button(program, text)));
    Dialog(program, dialog).answer(IDCANCEL);
    EXPECT_EQ(textOf(program.window()), L"Quillhue - Welcome");
  }
  clickAt(program, middleOf(button(program, L"16")));
  program.awaitTitle(L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program, 0), L"16 entries");
  program.close();
}

TEST_F(Intro, OffersSystemPalettesOnTheSixteenAlone) {
  Program program;
  HWND sixteen = button(program, L"16");
  const Rect box = boxOnScreen(sixteen);
  // Beside it nothing opens. The click on a corner comes after, so what the others did is known by then.
  for (const Point point : {middleOf(button(program, L"Blank")), Point{box.left - 1, box.top},
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
  EXPECT_FALSE(showsMenu(program));
  // By the keyboard, on the second item.
  tabTo(program, sixteen);
  pressKey(VK_APPS);
  static_cast<void>(openMenu(program));
  pressKey(VK_DOWN);
  pressKey(VK_DOWN);
  pressKey(VK_RETURN);
  program.awaitTitle(L"Quillhue - Untitled");
  EXPECT_EQ(statusText(program, 0), L"4 entries");
  program.close();
}

TEST_F(Intro, ButtonsHaveTooltips) {
  const Program program;
  std::vector<HWND> windows;
  std::map<std::wstring, std::wstring> tooltips;
  EnumThreadWindows(
      program.threadId(),
      [](HWND window, LPARAM found) -> BOOL {
        if (windowClass(window) == TOOLTIPS_CLASSW) {
          reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
        }
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  ProgramMemory memory(program, 4096);
  for (HWND tooltip : windows) {
    TTTOOLINFOW info{};
    info.cbSize = sizeof(info);
    info.lpszText = reinterpret_cast<wchar_t*>(memory.address() + static_cast<LPARAM>(sizeof(info)));
    memory.write(&info, sizeof(info));
    if (program.ask(tooltip, TTM_ENUMTOOLSW, 0, memory.address()) != 0) {
      memory.read(&info, sizeof(info));
      tooltips[textOf(reinterpret_cast<HWND>(info.uId))] = memory.text(sizeof(info));
    }
  }
  for (const IntroButton& each : introButtons()) {
    const std::wstring name(each.text.begin(), each.text.end());
    EXPECT_EQ(tooltips[name], std::wstring(each.tooltip.begin(), each.tooltip.end())) << each.text;
  }
  // One of them really appears.
  activate(program);
  moveTo(program, middleOf(button(program, L"Grey")));
  program.await("a tooltip to appear", [&] {
    return std::ranges::any_of(program.topWindows(),
                               [](HWND window) { return windowClass(window) == TOOLTIPS_CLASSW; });
  });
}

// The background around the buttons is painted, and the buttons show their icons.
TEST_F(Intro, LayoutIsPainted) {
  Program program;
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const PaletteEntry background{GetRValue(face), GetGValue(face), GetBValue(face)};
  const Size client = clientSizeOf(program.window());
  program.await("the background", [&] { return pixelOf(program.window(), {2, 2}) == background; });
  EXPECT_EQ(pixelOf(program.window(), {client.width / 2, 5}), background);
  for (const IntroButton& each : introButtons()) {
    const std::wstring name(each.text.begin(), each.text.end());
    HWND control = button(program, name.c_str());
    std::set<PaletteEntry> colors;
    const Size size = clientSizeOf(control);
    for (std::int32_t i = 0; i < size.width; i += 2) {
      colors.insert(pixelOf(control, {i, size.height / 2}));
      colors.insert(pixelOf(control, {size.width / 2, i}));
    }
    EXPECT_GT(colors.size(), 3U) << each.text;
    const Rect box = boxInParent(control);
    EXPECT_EQ(pixelOf(program.window(), {box.left - 1, box.top + 10}), background) << each.text;
    EXPECT_EQ(pixelOf(program.window(), {box.left + 10, box.bottom}), background) << each.text;
  }
}

}  // namespace
}  // namespace quillhue
