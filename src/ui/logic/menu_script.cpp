#include "ui/logic/menu_script.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "commands/command_table.h"
#include "ui/logic/menus.h"

namespace quillhue {

namespace {

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char character : text) {
    if (character == '\t') {
      result += "\\t";
    } else {
      result += character;
    }
  }
  return result + '"';
}

// Initial state of a menu's items, before a palette is open.
enum class Start : std::uint8_t {
  // Each item follows the rule of its command.
  byRule,
  // The menu is greyed, so its items are greyed only if they need more than an open editor.
  byNeed,
  // The menu opens only in places where its items work.
  enabled,
};

bool isEnabledAtStart(const MenuItem& item, Start start) {
  const CommandState nothing;
  if (start == Start::byNeed) {
    // A greyed menu can be opened only in the editor.
    return item.command == 0 || isMet(findCommand(item.command)->need, {.tab = ActiveTab::use});
  }
  return start == Start::enabled || isEnabled(item, nothing);
}

void addItems(const std::vector<MenuItem>& items, std::size_t depth, Start start, std::string& script) {
  const std::string indent(2 * depth, ' ');
  script += indent + "BEGIN\n";
  for (const MenuItem& item : items) {
    if (item.isSeparator()) {
      script += indent + "  MENUITEM SEPARATOR\n";
      continue;
    }
    const bool enabled = isEnabledAtStart(item, start);
    const char* const state = enabled ? "\n" : ", GRAYED\n";
    if (item.command != 0) {
      script += indent + "  MENUITEM " + quoted(item.text) + ", " + std::to_string(item.command) + state;
    } else {
      script += indent + "  POPUP " + quoted(item.text) + state;
      addItems(item.items, depth + 1, enabled ? start : Start::byNeed, script);
    }
  }
  script += indent + "END\n";
}

}  // namespace

std::string menuScript() {
  std::string script = "MAINMENU MENU\n";
  addItems(mainMenu(), 0, Start::byRule, script);
  script += "\nMAINPOPUP MENU\n";
  addItems(contextMenus(), 0, Start::enabled, script);
  script += "\nMAINACCEL ACCELERATORS\nBEGIN\n";
  for (const Command& command : commands()) {
    for (const Accelerator& accelerator : {command.accelerator, command.otherKey}) {
      if (accelerator.key != 0) {
        script += "  " + std::to_string(accelerator.key) + ", " + std::to_string(command.id) + ", VIRTKEY";
        script += accelerator.control ? ", CONTROL" : "";
        script += accelerator.shift ? ", SHIFT" : "";
        script += '\n';
      }
    }
  }
  return script + "END\n";
}

}  // namespace quillhue
