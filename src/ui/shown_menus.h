#pragma once

#include "commands/command_table.h"
#include "core/settings.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Greys the items of the window's menu bar and of the context menus that are disabled in this state, and puts the
/// radio mark on the selection mode.
void showInMenus(HWND window, HMENU contextMenus, const CommandState& state, SelectionMode mode);

}  // namespace quillhue
