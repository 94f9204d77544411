#include <algorithm>
#include <map>
#include <set>

#include "ui/logic/command_ids.h"
#include "ui/logic/menus.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class MenuBar : public UiTest {
 protected:
  // The commands that a user can't choose, in a menu or as an item.
  static std::set<std::int32_t> greyedCommands(const Program& program) {
    std::set<std::int32_t> greyed;
    int greyedMenu = 100;
    for (const MenuItemState& item : menuBar(program)) {
      greyedMenu = item.depth <= greyedMenu ? 100 : greyedMenu;
      if (item.command == 0 && !item.isSeparator && !item.isEnabled && greyedMenu == 100) {
        greyedMenu = item.depth;
      }
      if (item.command != 0 && (!item.isEnabled || item.depth > greyedMenu)) {
        greyed.insert(item.command);
      }
    }
    return greyed;
  }

  static std::set<std::int32_t> range(std::int32_t from, std::int32_t to) {
    std::set<std::int32_t> result;
    for (const Command& command : commands()) {
      if (command.id >= from && command.id <= to) {
        result.insert(command.id);
      }
    }
    return result;
  }

  static std::set<std::int32_t> both(std::set<std::int32_t> one, const std::set<std::int32_t>& other) {
    one.insert(other.begin(), other.end());
    return one;
  }
};

// A line an item, with a dot for each menu that it stands in.
std::string outline(const std::vector<MenuItemState>& items) {
  std::string lines;
  for (const MenuItemState& item : items) {
    lines += std::string(static_cast<std::size_t>(item.depth), '.') +
             (item.isSeparator ? "-" : std::to_string(item.command) + ' ' + narrow(item.text)) + '\n';
  }
  return lines;
}

void addOutline(const std::vector<MenuItem>& items, std::size_t depth, std::string& lines) {
  for (const MenuItem& item : items) {
    lines +=
        std::string(depth, '.') + (item.isSeparator() ? "-" : std::to_string(item.command) + ' ' + item.text) + '\n';
    addOutline(item.items, depth + 1, lines);
  }
}

TEST_F(MenuBar, HasTheCommandsOfTheTable) {
  Program program;
  std::string expected;
  addOutline(mainMenu(), 0, expected);
  EXPECT_EQ(outline(menuBar(program)), expected);
  program.close();
}

TEST_F(MenuBar, OffersWhatHasAnEffect) {
  const std::set<std::int32_t> editor = range(20, 28);
  const std::set<std::int32_t> effects = range(30, 50);
  const std::set<std::int32_t> history{20, 21};
  Program program;
  {
    SCOPED_TRACE("the intro screen");
    EXPECT_EQ(greyedCommands(program), both(both(editor, effects), {14, 15}));
  }
  program.run(command_id::kNewWindows);
  program.await("the editor", [&] { return tabControl(program); });
  {
    SCOPED_TRACE("Edit Values");
    EXPECT_EQ(greyedCommands(program), both(history, effects));
  }
  choosePage(program, 1);
  {
    SCOPED_TRACE("Apply Effects, no current entry");
    EXPECT_EQ(greyedCommands(program), both(history, {36, 37, 38}));
  }
  program.run(command_id::kSelectAll);
  {
    SCOPED_TRACE("a step to undo");
    EXPECT_EQ(greyedCommands(program), (std::set<std::int32_t>{21, 36, 37, 38}));
  }
  program.run(command_id::kUndo);
  {
    SCOPED_TRACE("a step to redo");
    EXPECT_EQ(greyedCommands(program), (std::set<std::int32_t>{20, 36, 37, 38}));
  }
  choosePage(program, 2);
  {
    SCOPED_TRACE("Use Palette");
    EXPECT_EQ(greyedCommands(program), both(effects, {20}));
  }
  choosePage(program, 0);
  {
    SCOPED_TRACE("back to Edit Values");
    EXPECT_EQ(greyedCommands(program), both(effects, {20}));
  }
}

}  // namespace
}  // namespace quillhue
