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
  // What the user sees: the entries that have the outline of selected ones, or that of the current one.
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
  void click(Point point) const { clickAt(editor(), point); }
};

// Each cell shows its color, and a cell without an entry the background.
TEST_F(GridTest, LayoutShowsTheColors) {
  const Editor& editor = open(brightPalette(2), kEffectsPage);
  HWND window = editor.gridWindow();
  for (const std::int32_t size : {1, 3, 16, 200, 256}) {
    const Palette palette = brightPalette(size);
    editor.drop({paletteFile(std::to_string(size), palette)});
    editor.awaitTitle(L"Quillhue - " + std::to_wstring(size));
    const Rect box = boxInParent(window);
    EXPECT_EQ(box.left, editor.page().left);
    EXPECT_EQ(box.top, editor.page().top);
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

TEST_F(GridTest, HitsTheCellUnderThePointer) {
  const Editor& editor = open(brightPalette(3));
  const GridLayout grid = editor.grid();
  ASSERT_EQ(grid.columns() * grid.rows(), 4);
  expectCurrent("0");
  // The corners of a cell belong to it.
  const Rect box = grid.cellBox(1);
  for (const Point corner : {Point{box.left, box.top}, Point{box.right - 1, box.bottom - 1}}) {
    click(editor.entryPoint(0));
    expectCurrent("0");
    click(onScreen(editor.gridWindow(), corner));
    expectCurrent("1");
  }
  click(onScreen(editor.gridWindow(), {box.left - 1, box.bottom - 1}));
  expectCurrent("0");
  // In this tab nothing is selected by that.
  EXPECT_FALSE(isOffered(editor, command_id::kUndo));
}

TEST_F(GridTest, SelectsByTheMode) {
  const struct {
    std::int32_t mode;
    std::int32_t from;
    std::int32_t to;
    std::vector<int> held;
    std::string selected;
    std::string current;
  } kDrags[] = {
      {command_id::kFreeSelection, 8, 11, {}, "8 9 10 11", "8"},
      {command_id::kRowSelection, 6, 6, {}, "4 5 6 7 8 9 10 11", "6"},
      {command_id::kRangeSelection, 3, 6, {}, "3 4 5 6", "6"},
      {command_id::kRangeSelection, 1, 1, {VK_SHIFT}, "1 2 3", "1"},
      {command_id::kRangeSelection, 14, 15, {VK_CONTROL}, "1 2 3 14 15", "15"},
  };
  const Editor& editor = open(brightPalette(16), kEffectsPage);
  ASSERT_EQ(editor.grid().columns(), 4);
  for (const auto& [mode, from, to, held, selected, current] : kDrags) {
    SCOPED_TRACE(selected);
    editor.run(mode);
    editor.drag({editor.entryPoint(from), editor.entryPoint(to)}, held);
    expectSelected(selected);
    expectCurrent(current);
  }
  // Each was one step.
  for (std::size_t i = std::size(kDrags); i > 0; --i) {
    expectSelected(kDrags[i - 1].selected);
    editor.run(command_id::kUndo);
  }
  EXPECT_FALSE(isOffered(editor, command_id::kUndo));
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
  const struct {
    int key;
    const char* current;
  } kMoves[] = {{VK_HOME, "0"},  {VK_RIGHT, "1"}, {VK_DOWN, "5"}, {VK_LEFT, "4"}, {VK_UP, "0"},
                {VK_NEXT, "12"}, {VK_PRIOR, "0"}, {VK_END, "15"}, {VK_UP, "11"}};
  for (const auto& [key, current] : kMoves) {
    pressKey(key);
    expectCurrent(current);
  }
  // Held down, Space is one click on the current entry.
  {
    const HeldKeys held({VK_SPACE});
    pressKey(VK_SPACE);
  }
  expectSelected("11");
  {
    const HeldKeys shift({VK_SHIFT});
    pressKey(VK_LEFT);
    pressKey(VK_LEFT);
    expectSelected("9 10 11");
  }
  editor.run(command_id::kUndo);
  expectSelected("11");
  // The menu opens at the current entry, and its command works on that.
  pressKey(VK_APPS);
  EXPECT_FALSE(openMenu(editor).empty());
  closeMenu(editor);
}

TEST_F(GridTest, OpensTheContextMenuOnAnEntry) {
  for (const int page : {kValuesPage, kEffectsPage}) {
    SCOPED_TRACE(page);
    const Editor& editor = open(brightPalette(3), page);
    // Neither on the empty cell nor beside the grid.
    clickAt(editor, editor.entryPoint(3), Button::right);
    expectCurrent("");
    clickAt(editor, editor.entryPoint(2), Button::right);
    const auto items = openMenu(editor);
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.front().command, page == kValuesPage ? command_id::kEditColor : command_id::kUndo);
    EXPECT_EQ(items.back().command, command_id::kUseAsBlank);
    // There is nothing to undo or redo.
    EXPECT_TRUE(std::ranges::all_of(items, [](const auto& item) {
      const bool needsStep = item.command == command_id::kUndo || item.command == command_id::kRedo;
      return item.isSeparator || item.isEnabled != needsStep;
    }));
    pressKey(VK_UP);
    closeMenu(editor, VK_RETURN);
    expectCurrent("2");
    editor.close();
    const PaletteEntry blank = brightPalette(3).entry(2);
    EXPECT_EQ(storedSettings()["Blank"], storedBytes({blank.red, blank.green, blank.blue}));
  }
}

}  // namespace
}  // namespace quillhue
