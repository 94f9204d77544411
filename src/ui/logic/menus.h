#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "commands/command_table.h"

namespace quillhue {

/// The menu bar and the context menus, made of commands.

struct MenuItem {
  /// 0 for a separator or a menu of its own.
  std::int32_t command = 0;
  /// As it is shown, accelerator included.
  std::string text;
  /// What a menu of its own holds.
  std::vector<MenuItem> items;

  [[nodiscard]] bool isSeparator() const { return command == 0 && items.empty(); }
};

/// Its items are the menus of the bar, the second of them "&Edit".
[[nodiscard]] const std::vector<MenuItem>& mainMenu();

/// The places of the context menus among those of contextMenus().
inline constexpr std::int32_t kNewPopup = 0;
inline constexpr std::int32_t kValuesPopup = 1;
inline constexpr std::int32_t kEffectsPopup = 2;
/// Menus like those of a bar, titled by their names.
[[nodiscard]] const std::vector<MenuItem>& contextMenus();

/// A menu of its own is offered while anything handles one of its commands, and a command as the table tells.
[[nodiscard]] bool isEnabled(const MenuItem& item, const CommandState& state);

}  // namespace quillhue
