#include <algorithm>

#include "commands/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

/// The palette's grid on the page that is shown.
class GridTest : public UiTest {
 protected:
  // Returns the entries that the user sees outlined as selected, or as current.
  [[nodiscard]] std::string outlined(bool asCurrent) const {
    const GridLayout grid = editor().grid();
    HWND window = editor().gridWindow();
    std::string entries;
    for (std::int32_t i = 0; i < grid.columns() * grid.rows(); ++i) {
      const Rect box = asCurrent ? grid.colorBox(i).inset(1) : grid.cellBox(i);
      if (pixelOf(window, {box.left, box.top}) == PaletteEntry{}) {
        entries += entries.empty() ? "" : " ";
        entries += std::to_string(i);
      }
    }
    return entries;
  }
  void expectSelected(const std::string& entries) const {
    editor().awaitEqual(entries, [this] { return outlined(false); });
  }
  void expectCurrent(const std::string& entry) const {
    editor().awaitEqual(entry, [this] { return outlined(true); });
  }
};

// Each cell shows its color. A cell without an entry shows the background.
TEST_F(GridTest, LayoutShowsTheColors) {
  const Editor& editor = open(brightPalette(2), kEffectsPage);
  HWND window = editor.gridWindow();
  for (const std::int32_t size : {1, 3, 256}) {
    const Palette palette = brightPalette(size);
    editor.drop({paletteFile(std::to_string(size), palette)});
    editor.awaitTitle(L"Quillhue - " + std::to_wstring(size));
    const GridLayout grid = editor.grid();
    editor.await("all colors of " + std::to_string(size), [&] {
      for (std::int32_t i = 0; i < grid.columns() * grid.rows(); ++i) {
        if (pixelOf(window, middleOf(grid.cellBox(i))) != (i < size ? palette.entry(i) : PaletteEntry{255, 255, 255})) {
          return false;
        }
      }
      return true;
    });
  }
}

TEST_F(GridTest, OnlyMarksAnEntryOfThePageForValues) {
  const Editor& editor = open(brightPalette(3));
  expectCurrent("0");
  // The last pixel of a cell belongs to it.
  const Rect box = editor.grid().cellBox(1);
  clickAt(editor, onScreen(editor.gridWindow(), {box.right - 1, box.bottom - 1}));
  expectCurrent("1");
  EXPECT_FALSE(isOffered(editor, command_id::kUndo));
}

TEST_F(GridTest, IsUsedByTheMouse) {
  const Editor& editor = open(brightPalette(16), kEffectsPage);
  ASSERT_EQ(editor.grid().columns(), 4);
  const auto drag = [&](std::int32_t from, std::int32_t to, const std::vector<int>& held = {}) {
    editor.drag({editor.entryPoint(from), editor.entryPoint(to)}, held);
  };
  drag(8, 11);
  expectSelected("8 9 10 11");
  expectCurrent("8");
  editor.run(command_id::kRangeSelection);
  drag(3, 6);
  drag(1, 1, {VK_SHIFT});
  expectSelected("1 2 3");
  drag(14, 15, {VK_CONTROL});
  expectSelected("1 2 3 14 15");
  expectCurrent("15");
  editor.run(command_id::kUndo);
  expectSelected("1 2 3");
  // A range is shown while it is dragged.
  moveTo(editor, editor.entryPoint(12));
  press();
  expectSelected("12");
  moveTo(editor, editor.entryPoint(15));
  expectSelected("12 13 14 15");
  release();
}

TEST_F(GridTest, IsUsedByTheKeyboard) {
  const Editor& editor = open(brightPalette(16), kEffectsPage);
  ASSERT_EQ(editor.grid().columns(), 4);
  tabTo(editor, editor.gridWindow());
  for (const auto& [key, current] :
       {std::pair{VK_HOME, "0"}, {VK_DOWN, "4"}, {VK_NEXT, "12"}, {VK_PRIOR, "0"}, {VK_END, "15"}, {VK_UP, "11"}}) {
    pressKey(key);
    expectCurrent(current);
  }
  // Holding Space down is a single click on the current entry.
  {
    const HeldKeys held({VK_SPACE});
    pressKey(VK_SPACE);
  }
  expectSelected("11");
  // With Shift held, all moves are one step.
  {
    const HeldKeys shift({VK_SHIFT});
    pressKey(VK_LEFT);
    pressKey(VK_LEFT);
    expectSelected("9 10 11");
  }
  editor.run(command_id::kUndo);
  expectSelected("11");
  pressKey(VK_APPS);
  EXPECT_FALSE(openMenu(editor).empty());
  closeMenu(editor);
}

TEST_F(GridTest, OpensTheContextMenuOnAnEntry) {
  for (const int page : {kValuesPage, kEffectsPage}) {
    SCOPED_TRACE(page);
    const Editor& editor = open(brightPalette(3), page);
    // No menu opens on the empty cell or beside the grid.
    clickAt(editor, editor.entryPoint(3), Button::right);
    expectCurrent("");
    clickAt(editor, editor.entryPoint(2), Button::right);
    const auto items = openMenu(editor);
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.front().command, page == kValuesPage ? command_id::kEditColor : command_id::kUndo);
    EXPECT_EQ(items.back().command, command_id::kUseAsBlank);
    // There is nothing to undo.
    EXPECT_FALSE(std::ranges::find(items, command_id::kUndo, &MenuReport::Item::command)->isEnabled);
    pressKey(VK_UP);
    closeMenu(editor, VK_RETURN);
    expectCurrent("2");
    editor.close();
    const PaletteEntry blank = brightPalette(3).entry(2);
    EXPECT_EQ(storedSettings()["Blank"], (Bytes{blank.red, blank.green, blank.blue}));
  }
}

}  // namespace
}  // namespace quillhue
