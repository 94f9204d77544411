#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "commands/command_table.h"

namespace quillhue {

/// The menu bar and the context menus, built from the command table.

struct MenuItem {
  /// 0 for a separator or a submenu.
  std::int32_t command = 0;
  /// The displayed text, including the accelerator.
  std::string text;
  /// The items of a submenu.
  std::vector<MenuItem> items;

  [[nodiscard]] bool isSeparator() const { return command == 0 && items.empty(); }
};

/// Returns the menus of the menu bar. The second is "&Edit".
[[nodiscard]] const std::vector<MenuItem>& mainMenu();

/// Indexes of the context menus in contextMenus().
inline constexpr std::int32_t kNewPopup = 0;
inline constexpr std::int32_t kValuesPopup = 1;
inline constexpr std::int32_t kEffectsPopup = 2;
/// Returns the context menus. The text of each is its name.
[[nodiscard]] const std::vector<MenuItem>& contextMenus();

/// Returns whether an item is enabled. A command follows the rules of the command table; a submenu is enabled if one of
/// its commands is handled.
[[nodiscard]] bool isEnabled(const MenuItem& item, const CommandState& state);

}  // namespace quillhue
