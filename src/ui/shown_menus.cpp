#include "ui/shown_menus.h"

#include <cstddef>
#include <vector>

#include "ui/logic/menus.h"

namespace quillhue {

namespace {

// Returns true if a direct item of the menu has changed.
bool updateItems(HMENU menu, const std::vector<MenuItem>& items, const CommandState& state) {
  bool changed = false;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (items[i].isSeparator()) {
      continue;
    }
    const UINT wanted = isEnabled(items[i], state) ? MF_ENABLED : MF_GRAYED;
    const int before = EnableMenuItem(menu, static_cast<UINT>(i), MF_BYPOSITION | wanted);
    changed = changed || static_cast<UINT>(before) != wanted;
    if (!items[i].items.empty()) {
      updateItems(GetSubMenu(menu, static_cast<int>(i)), items[i].items, state);
    }
  }
  return changed;
}

}  // namespace

void showInMenus(HWND window, HMENU contextMenus, const CommandState& state, SelectionMode mode) {
  const HMENU bar = GetMenu(window);
  if (updateItems(bar, mainMenu(), state)) {
    DrawMenuBar(window);
  }
  updateItems(contextMenus, quillhue::contextMenus(), state);
  for (const HMENU menu : {bar, contextMenus}) {
    CheckMenuRadioItem(menu, commandOf(SelectionMode::free), commandOf(SelectionMode::range),
                       static_cast<UINT>(commandOf(mode)), MF_BYCOMMAND);
  }
}

}  // namespace quillhue
