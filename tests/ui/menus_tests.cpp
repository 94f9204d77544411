#include <algorithm>
#include <functional>

#include "commands/command_ids.h"
#include "ui/logic/menus.h"
#include "ui/support/input.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class MenuBar : public UiTest {};

// A line an item, with a dot for each menu that it stands in.
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

TEST_F(MenuBar, OffersWhatHasAnEffect) {
  struct Commands {
    std::int32_t first;
    std::int32_t last;
  };
  const Editor& editor = open(brightPalette(16));
  const auto runs = [&](std::int32_t command) { return [&, command] { editor.run(command); }; };
  const auto chooses = [&](int page) { return [&, page] { editor.choosePage(page); }; };
  const auto rightClicks = [&](const std::function<HWND()>& control) {
    return [&, control] { clickAt(editor, middleOf(boxOnScreen(control())), Button::right); };
  };
  const struct {
    const char* what;
    std::function<void()> act;
    std::vector<Commands> greyed;
  } kStates[] = {
      {"Edit Values", [] {}, {{20, 21}, {30, 50}}},
      {"Apply Effects, no current entry", chooses(kEffectsPage), {{20, 21}, {36, 38}}},
      {"a step to undo", runs(command_id::kSelectAll), {{21, 21}, {36, 38}}},
      {"a step to redo", runs(command_id::kUndo), {{20, 20}, {36, 38}}},
      {"Use Palette", chooses(kUsePage), {{20, 20}, {30, 50}}},
      {"back to Edit Values", chooses(kValuesPage), {{20, 20}, {30, 50}}},
      // Only a right click on the grid itself takes the current entry away.
      {"a right click on the status bar",
       rightClicks([&] { return editor.control(L"msctls_statusbar32"); }),
       {{20, 20}, {30, 50}}},
      {"a right click on the list", rightClicks([&] { return editor.control(L"ComboBox"); }), {{20, 20}, {30, 50}}},
      {"a right click on the margin",
       [&] { clickAt(editor, onScreen(editor.gridWindow(), {2, 2}), Button::right); },
       {{20, 20}, {22, 25}, {30, 50}}},
  };
  const auto expectGreyed = [](const Program& program, const std::vector<Commands>& greyed) {
    for (const auto& item : menuBar(program)) {
      const bool isGreyed = std::ranges::any_of(greyed, [&](const Commands& commands) {
        return item.command >= commands.first && item.command <= commands.last;
      });
      EXPECT_TRUE(item.command == 0 || item.isEnabled != isGreyed) << item.command;
    }
  };
  for (const auto& [what, act, greyed] : kStates) {
    SCOPED_TRACE(what);
    act();
    editor.awaitInput();
    expectGreyed(editor, greyed);
  }
  SCOPED_TRACE("the intro screen");
  expectGreyed(Program(), {{14, 15}, {20, 28}, {30, 50}});
}

}  // namespace
}  // namespace quillhue
