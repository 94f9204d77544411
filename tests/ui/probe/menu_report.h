#pragma once

#include <cstdint>

#include "ui/win32/system.h"

namespace quillhue {

/// The name of the message that asks for a MenuReport. Its last parameter is the address of the report.
inline constexpr const wchar_t* kMenuReportMessage = L"QuillhueMenuReport";

/// Content of a menu, as the program itself sees it. Other processes can't always read menus.
struct MenuReport {
  /// An item as the user would see it now.
  struct Item {
    /// 0 for a submenu and for a separator.
    std::int32_t command;
    /// Number of menus that contain the item.
    int depth;
    bool isSeparator;
    /// Whether the item and all menus that contain it are enabled.
    bool isEnabled;
    bool isChecked;
    wchar_t text[96];
  };

  /// The menu to report; null for the menu bar of the window that gets the message.
  HMENU menu;
  /// The answer.
  int count;
  Item items[120];
};

}  // namespace quillhue
