#include <windows.h>

#include <algorithm>

#include "effects/effects.h"
#include "ui/logic/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Effects : public UiTest {
 protected:
  static void clickButton(const Program& program, const wchar_t* text) {
    HWND button = findControl(program.window(), L"Button", text);
    ASSERT_NE(button, nullptr) << narrow(text);
    program.ask(button, BM_CLICK);
  }
};

TEST_F(Effects, AreShownBeforeTheyAreApplied) {
  const auto all = effects();
  const auto negative =
      std::ranges::find(all, std::string_view("negative"), [](const auto* effect) { return effect->name; });
  ASSERT_NE(negative, all.end());
  store(StoredSettings{{"Effect", storedBytes({static_cast<std::uint8_t>(negative - all.begin())})}});
  const Palette palette = brightPalette(1);
  const PaletteEntry color = palette.entry(0);
  const std::wstring file = paletteFile("own.pal", palette);
  Program program({file});
  program.await("the editor", [&] { return tabControl(program); });
  choosePage(program, 1);
  program.run(command_id::kSelectAll);
  HWND grid = program.await("the grid", [&] { return findControl(program.window(), L"QuillhueGrid"); });
  const Size size = clientSizeOf(grid);
  const auto shows = [&](const PaletteEntry& wanted) {
    return pixelOf(grid, {size.width / 2, size.width / 2}) == wanted;
  };
  // The effect's own value changes nothing, and one out of its range counts as the nearest.
  HWND value = findControl(program.window(), L"Edit");
  program.ask(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"0"));
  const PaletteEntry preview{static_cast<std::uint8_t>(255 - color.red), static_cast<std::uint8_t>(255 - color.green),
                             static_cast<std::uint8_t>(255 - color.blue)};
  program.await("a preview", [&] { return shows(preview); });
  program.ask(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"9999"));
  program.await("no effect", [&] { return shows(color); });
  program.ask(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"0"));
  // The document is as it was.
  EXPECT_EQ(show(savedPalette(program, file)), show(palette));
  clickButton(program, L"Pre&view");
  program.await("no preview", [&] { return shows(color); });
  clickButton(program, L"Pre&view");
  program.await("a preview", [&] { return shows(preview); });
  clickButton(program, L"Re&set");
  program.await("no effect", [&] { return shows(color); });
  EXPECT_EQ(textOf(value), L"255");
  program.ask(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"0"));
  clickButton(program, L"&Apply");
  Palette applied = palette;
  applied.setEntry(0, preview);
  EXPECT_EQ(show(savedPalette(program, file)), show(applied));
  program.run(command_id::kUndo);
  EXPECT_EQ(show(savedPalette(program, file)), show(palette));
}

}  // namespace
}  // namespace quillhue
