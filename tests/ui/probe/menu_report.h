#pragma once

#include <windows.h>

namespace quillhue {

/// What a thread in the program tells about a menu: other processes can't see into menus everywhere.
struct MenuReport {
  struct Item {
    UINT command;
    UINT state;
    UINT type;
    int depth;
    wchar_t text[96];
  };

  /// The menu that is asked for; null for the menu bar of `window`.
  HMENU menu;
  HWND window;
  /// The answer.
  int count;
  Item items[120];
};

}  // namespace quillhue
