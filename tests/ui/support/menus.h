#pragma once

#include <cstdint>
#include <vector>

#include "ui/probe/menu_report.h"
#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Returns all items of the menu bar. A submenu comes before its items.
[[nodiscard]] std::vector<MenuReport::Item> menuBar(const Program& program);
/// Returns the item of a command in the menu bar. A missing item ends the test.
[[nodiscard]] MenuReport::Item menuBarItem(const Program& program, std::int32_t command);
[[nodiscard]] bool isOffered(const Program& program, std::int32_t command);

/// Waits for a context menu, and returns its items.
[[nodiscard]] std::vector<MenuReport::Item> openMenu(const Program& program);
/// Whether a context menu is open.
[[nodiscard]] bool showsMenu(const Program& program);
/// Returns the window that the open menu belongs to, or null.
[[nodiscard]] HWND menuOwnerOf(const Program& program);
/// Presses a key that closes the context menu, and waits until it is closed.
void closeMenu(const Program& program, int key = VK_ESCAPE);

}  // namespace quillhue
