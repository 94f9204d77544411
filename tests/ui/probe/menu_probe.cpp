#include <iterator>

#include "ui/probe/menu_report.h"

namespace {

using quillhue::MenuReport;

void addItems(HMENU menu, int depth, bool isEnabled, MenuReport& report) {
  const int count = GetMenuItemCount(menu);
  for (int i = 0; i < count && report.count < static_cast<int>(std::size(report.items)); ++i) {
    MenuReport::Item& item = report.items[report.count];
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_SUBMENU | MIIM_STRING;
    info.dwTypeData = item.text;
    info.cch = static_cast<UINT>(std::size(item.text));
    if (GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info) == 0) {
      continue;
    }
    ++report.count;
    item.depth = depth;
    item.isSeparator = (info.fType & MFT_SEPARATOR) != 0;
    item.command = info.hSubMenu != nullptr || item.isSeparator ? 0 : static_cast<std::int32_t>(info.wID);
    item.isEnabled = isEnabled && (info.fState & MFS_GRAYED) == 0;
    item.isChecked = (info.fState & MFS_CHECKED) != 0;
    if (info.hSubMenu != nullptr) {
      addItems(info.hSubMenu, depth + 1, item.isEnabled, report);
    }
  }
}

}  // namespace

/// A hook on the messages that are sent to the program's thread.
extern "C" __declspec(dllexport) LRESULT CALLBACK reportMenu(int code, WPARAM wParam, LPARAM data) {
  const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(data);
  if (code == HC_ACTION && sent.message == RegisterWindowMessageW(quillhue::kMenuReportMessage)) {
    auto& report = *reinterpret_cast<MenuReport*>(sent.lParam);
    addItems(report.menu != nullptr ? report.menu : GetMenu(sent.hwnd), 0, true, report);
  }
  return CallNextHookEx(nullptr, code, wParam, data);
}
