#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

#include "ui/support/program.h"

namespace quillhue {

/// An item of a menu of the program, as the user would see it now.
struct MenuItemState {
  /// 0 for a menu of its own and for a separator.
  std::int32_t command = 0;
  std::wstring text;
  /// How many menus it stands in.
  int depth = 0;
  bool isSeparator = false;
  bool isEnabled = false;
  bool isChecked = false;
};

/// All items of the menu bar, each before what it holds.
[[nodiscard]] std::vector<MenuItemState> menuBar(const Program& program);
/// The item of a command in the menu bar; one that is not there ends the test.
[[nodiscard]] MenuItemState menuBarItem(const Program& program, std::int32_t command);
[[nodiscard]] bool isOffered(const Program& program, std::int32_t command);

/// Waits for a context menu, and tells what is in it.
[[nodiscard]] std::vector<MenuItemState> openMenu(const Program& program);
/// Whether a context menu is open.
[[nodiscard]] bool showsMenu(const Program& program);
/// Closes the context menu by the Escape key, and waits until it is gone.
void closeMenu(const Program& program);

}  // namespace quillhue
