#include "commands/command_table.h"
#include "ui/logic/menus.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class MenuBar : public UiTest {};

// One line per item, with a dot for each menu around it.
std::string line(int depth, bool isSeparator, std::int32_t command, const std::string& text) {
  return std::string(static_cast<std::size_t>(depth), '.') +
         (isSeparator ? "-" : std::to_string(command) + ' ' + text) + '\n';
}

void addLines(const std::vector<MenuItem>& items, int depth, std::string& lines) {
  for (const MenuItem& item : items) {
    lines += line(depth, item.isSeparator(), item.command, item.text);
    addLines(item.items, depth + 1, lines);
  }
}

TEST_F(MenuBar, HasTheCommandsOfTheTable) {
  const Program program;
  std::string expected;
  addLines(mainMenu(), 0, expected);
  std::string shown;
  for (const auto& item : menuBar(program)) {
    shown += line(item.depth, item.isSeparator, item.command, narrow(item.text));
  }
  EXPECT_EQ(shown, expected);
}

// commands.txt tests all rules. This test shows that the menu bar applies them anew each time.
TEST_F(MenuBar, OffersWhatHasAnEffect) {
  const auto greyed = [](const Program& program) {
    std::string commands;
    for (const auto& item : menuBar(program)) {
      commands += item.command == 0 || item.isEnabled ? "" : std::to_string(item.command) + ' ';
    }
    return commands;
  };
  const Program program;
  std::string effects;
  for (const auto& item : menuBar(program)) {
    const Command* const command = findCommand(item.command);
    const bool isEffect = command != nullptr && command->scope == CommandScope::effectsTab;
    effects += isEffect ? std::to_string(item.command) + ' ' : "";
  }
  EXPECT_EQ(greyed(program), "14 15 20 21 22 23 24 25 26 27 28 " + effects);
  const Editor& editor = open(brightPalette(16));
  EXPECT_EQ(greyed(editor), "20 21 " + effects);
  editor.choosePage(kEffectsPage);
  EXPECT_EQ(greyed(editor), "20 21 36 37 38 ");
  editor.run(command_id::kSelectAll);
  EXPECT_EQ(greyed(editor), "21 36 37 38 ");
  editor.choosePage(kValuesPage);
  // Only a right click on the grid itself clears the current entry.
  clickAt(editor, middleOf(boxOnScreen(editor.control(L"ComboBox"))), Button::right);
  editor.awaitInput();
  EXPECT_EQ(greyed(editor), "21 " + effects);
  clickAt(editor, onScreen(editor.gridWindow(), {2, 2}), Button::right);
  editor.awaitInput();
  EXPECT_EQ(greyed(editor), "21 22 23 24 25 " + effects);
}

}  // namespace
}  // namespace quillhue
