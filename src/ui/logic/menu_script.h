#pragma once

#include <string>

namespace quillhue {

/// The menu bar, the context menus and the accelerators as the source of the program's resources "MAINMENU",
/// "MAINPOPUP" and "MAINACCEL". In the menu bar, menus and items that are of no use without a palette start greyed, and
/// so do items of a greyed menu that need more than that.
[[nodiscard]] std::string menuScript();

}  // namespace quillhue
