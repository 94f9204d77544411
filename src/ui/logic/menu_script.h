#pragma once

#include <string>

namespace quillhue {

/// Returns the resource script of the menu bar ("MAINMENU"), the context menus ("MAINPOPUP") and the accelerators
/// ("MAINACCEL"). Menus and items of the menu bar that need a palette start greyed. In a greyed menu, only items that
/// need more than an open editor start greyed.
[[nodiscard]] std::string menuScript();

}  // namespace quillhue
