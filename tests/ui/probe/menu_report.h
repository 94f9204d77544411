#pragma once

#include <cstdint>

#include "ui/win32/system.h"

namespace quillhue {

/// The name of the message that asks for a MenuReport, at the address that it has as its last parameter.
inline constexpr const wchar_t* kMenuReportMessage = L"QuillhueMenuReport";

/// What the program itself finds in a menu: other processes can't see into menus everywhere.
struct MenuReport {
  /// An item as the user would see it now.
  struct Item {
    /// 0 for a menu of its own and for a separator.
    std::int32_t command;
    /// How many menus it stands in.
    int depth;
    bool isSeparator;
    /// It and all menus that it stands in.
    bool isEnabled;
    bool isChecked;
    wchar_t text[96];
  };

  /// The menu that is asked for; null for the menu bar of the window that gets the message.
  HMENU menu;
  /// The answer.
  int count;
  Item items[120];
};

}  // namespace quillhue
