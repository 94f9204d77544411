#include <windows.h>
// Needs windows.h before it.
#include <commctrl.h>

#include <algorithm>
#include <memory>

#include "ui/logic/command_ids.h"
#include "ui/logic/grid_layout.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

void addNumber(std::int32_t number, std::string& list) {
  list += list.empty() ? "" : " ";
  list += std::to_string(number);
}

/// The palette's grid on the page that is shown.
class GridTest : public UiTest {
 protected:
  static constexpr int kEffectsPage = 1;

  // Opens the palette, on one of the pages that have a grid.
  void open(const Palette& palette, int page) {
    file_ = paletteFile("grid.pal", palette);
    program_ = std::make_unique<Program>(std::vector{file_});
    size_ = palette.getSize();
    program().await("the editor", [&] { return tabControl(program()); });
    if (page != 0) {
      choosePage(program(), page);
    }
    window_ = program().await("the grid", [&] { return findControl(program().window(), L"QuillhueGrid"); });
    layOut();
  }
  void layOut() {
    // Of the page's area the grid's window has the left part; the layout needs its width only to be the same.
    const Rect box = boxInParent(window_);
    RECT page{};
    ProgramMemory memory(program(), sizeof(page));
    const Rect tab = boxInParent(tabControl(program()));
    page = {tab.left, tab.top, tab.right, tab.bottom};
    memory.write(&page, sizeof(page));
    program().ask(tabControl(program()), TCM_ADJUSTRECT, FALSE, memory.address());
    memory.read(&page, sizeof(page));
    EXPECT_EQ(box.left, page.left);
    EXPECT_EQ(box.top, page.top);
    layout_ = GridLayout({page.left, page.top, page.right, page.bottom}, size_, screenScale());
  }

  [[nodiscard]] Program& program() { return *program_; }
  [[nodiscard]] HWND window() const { return window_; }
  [[nodiscard]] const GridLayout& layout() const { return layout_; }

  [[nodiscard]] Point middleOf(std::int32_t index) const {
    const Rect box = layout_.cellBox(index);
    return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
  }
  [[nodiscard]] Point screenMiddleOf(std::int32_t index) const { return onScreen(window_, middleOf(index)); }

  // What the user sees: which entries have the outline of selected ones, and which that of the current one.
  [[nodiscard]] std::string selected() const {
    std::string result;
    for (std::int32_t i = 0; i < size_; ++i) {
      const Rect box = layout_.cellBox(i);
      if (pixelOf(window_, {box.left, box.top}) == PaletteEntry{}) {
        addNumber(i, result);
      }
    }
    return result;
  }
  [[nodiscard]] std::string current() const {
    std::string result;
    for (std::int32_t i = 0; i < size_; ++i) {
      const Rect box = layout_.colorBox(i);
      if (pixelOf(window_, {box.left + 1, box.top + 1}) == PaletteEntry{}) {
        addNumber(i, result);
      }
    }
    return result;
  }
  void expectSelected(const std::string& expected) {
    expectSoon("selection", expected, [this] { return selected(); });
  }
  void expectCurrent(const std::string& expected) {
    expectSoon("current entry", expected, [this] { return current(); });
  }
  void expectSoon(const std::string& what, const std::string& expected, const std::function<std::string()>& look) {
    std::string seen;
    EXPECT_NO_THROW(program().await("the " + what + " \"" + expected + '"',
                                    [&] {
                                      seen = look();
                                      return seen == expected;
                                    }))
        << "seen: \"" << seen << '"';
  }

  void click(std::int32_t entry, std::initializer_list<int> held = {}) {
    clickAt(program(), screenMiddleOf(entry), Button::left, held);
  }
  void dragOver(std::int32_t from, std::int32_t to, std::initializer_list<int> held = {}) {
    drag(program(), {screenMiddleOf(from), screenMiddleOf(to)}, held);
  }

 private:
  std::wstring file_;
  std::unique_ptr<Program> program_;
  std::int32_t size_ = 0;
  HWND window_ = nullptr;
  GridLayout layout_;
};

// Each cell shows its color, and a cell without an entry the background.
TEST_F(GridTest, LayoutShowsTheColors) {
  for (const std::int32_t size : {1, 3, 16, 200, 256}) {
    const Palette palette = brightPalette(size);
    open(palette, kEffectsPage);
    program().await("all colors of " + std::to_string(size), [&] {
      for (std::int32_t i = 0; i < layout().columns() * layout().rows(); ++i) {
        const PaletteEntry shown = pixelOf(window(), middleOf(i));
        if (shown != (i < size ? palette.entry(i) : PaletteEntry{255, 255, 255})) {
          return false;
        }
      }
      return true;
    });
  }
}

TEST_F(GridTest, HitsTheCellUnderThePointer) {
  open(brightPalette(3), 0);
  ASSERT_EQ(layout().columns() * layout().rows(), 4);
  expectCurrent("0");
  // The corners of a cell belong to it.
  const Rect box = layout().cellBox(1);
  for (const Point point : {Point{box.left, box.top}, Point{box.right - 1, box.bottom - 1}}) {
    click(0);
    expectCurrent("0");
    clickAt(program(), onScreen(window(), point));
    expectCurrent("1");
  }
  clickAt(program(), onScreen(window(), {box.left - 1, box.bottom - 1}));
  expectCurrent("0");
  // In this tab nothing is selected by that.
  EXPECT_FALSE(isOffered(program(), command_id::kUndo));
}

TEST_F(GridTest, SelectsFreely) {
  open(brightPalette(16), kEffectsPage);
  click(5);
  expectSelected("5");
  expectCurrent("5");
  click(9);
  expectSelected("5 9");
  click(5);
  expectSelected("9");
  // Dragging gives all the state of the first.
  dragOver(8, 11);
  expectSelected("8 9 10 11");
  dragOver(9, 10);
  expectSelected("8 11");
  // Each was one step.
  const char* const steps[] = {"8 9 10 11", "9", "5 9", "5", ""};
  for (const char* step : steps) {
    program().run(command_id::kUndo);
    expectSelected(step);
  }
  EXPECT_FALSE(isOffered(program(), command_id::kUndo));
}

TEST_F(GridTest, SelectsRows) {
  open(brightPalette(16), kEffectsPage);
  ASSERT_EQ(layout().columns(), 4);
  program().run(command_id::kRowSelection);
  click(6);
  expectSelected("4 5 6 7");
  expectCurrent("6");
  dragOver(1, 13);
  expectSelected("0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15");
  click(8);
  expectSelected("0 1 2 3 4 5 6 7 12 13 14 15");
  program().run(command_id::kUndo);
  program().run(command_id::kUndo);
  expectSelected("4 5 6 7");
}

TEST_F(GridTest, SelectsRanges) {
  open(brightPalette(16), kEffectsPage);
  program().run(command_id::kRangeSelection);
  dragOver(3, 6);
  expectSelected("3 4 5 6");
  expectCurrent("6");
  click(9);
  expectSelected("9");
  click(11, {VK_SHIFT});
  expectSelected("9 10 11");
  click(7, {VK_SHIFT});
  expectSelected("7 8 9");
  dragOver(0, 1, {VK_CONTROL});
  expectSelected("0 1 7 8 9");
  program().run(command_id::kUndo);
  expectSelected("7 8 9");
  // A range is shown while it is dragged.
  activate(program());
  moveTo(program(), screenMiddleOf(12));
  press();
  expectSelected("12");
  moveTo(program(), screenMiddleOf(15));
  expectSelected("12 13 14 15");
  moveTo(program(), screenMiddleOf(13));
  expectSelected("12 13");
  release();
  program().run(command_id::kUndo);
  expectSelected("7 8 9");
}

TEST_F(GridTest, IsUsedByTheKeyboard) {
  open(brightPalette(16), kEffectsPage);
  ASSERT_EQ(layout().columns(), 4);
  tabTo(program(), window());
  const struct {
    int key;
    const char* current;
  } kMoves[] = {{VK_HOME, "0"}, {VK_RIGHT, "1"}, {VK_DOWN, "5"},  {VK_LEFT, "4"},  {VK_LEFT, "3"},
                {VK_UP, "3"},   {VK_END, "15"},  {VK_PRIOR, "3"}, {VK_NEXT, "15"}, {VK_UP, "11"}};
  for (const auto& [key, expected] : kMoves) {
    pressKey(key);
    expectCurrent(expected);
  }
  pressKey(VK_SPACE);
  expectSelected("11");
  {
    const HeldKeys shift({VK_SHIFT});
    pressKey(VK_LEFT);
    pressKey(VK_LEFT);
    expectSelected("9 10 11");
  }
  program().run(command_id::kUndo);
  expectSelected("11");
  // The menu opens at the current entry, and its command works on that.
  pressKey(VK_APPS);
  const auto items = openMenu(program());
  EXPECT_FALSE(items.empty());
  closeMenu(program());
}

TEST_F(GridTest, OpensTheContextMenuOnAnEntry) {
  for (const int page : {0, kEffectsPage}) {
    SCOPED_TRACE(page);
    open(brightPalette(3), page);
    // Neither on the empty cell nor beside the grid.
    clickAt(program(), screenMiddleOf(3), Button::right);
    expectCurrent("");
    clickAt(program(), screenMiddleOf(2), Button::right);
    const auto items = openMenu(program());
    const std::int32_t first = page == 0 ? command_id::kEditColor : command_id::kFreeSelection;
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.front().command, first);
    EXPECT_EQ(items.back().command, command_id::kUseAsBlank);
    EXPECT_TRUE(
        std::ranges::all_of(items, [](const MenuItemState& item) { return item.isSeparator || item.isEnabled; }));
    pressKey(VK_UP);
    pressKey(VK_RETURN);
    program().await("the menu to close", [&] { return !showsMenu(program()); });
    expectCurrent("2");
    program().close();
    const PaletteEntry blank = brightPalette(3).entry(2);
    EXPECT_EQ(storedSettings().value_or(StoredSettings{}).at("Blank"),
              storedBytes({blank.red, blank.green, blank.blue}));
  }
}

}  // namespace
}  // namespace quillhue
