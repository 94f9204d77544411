#include <iterator>

#include "ui/probe/menu_report.h"

namespace {

using quillhue::MenuReport;

void addItems(HMENU menu, int depth, MenuReport& report) {
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
    item.command = info.hSubMenu != nullptr ? 0 : info.wID;
    item.state = info.fState;
    item.type = info.fType;
    item.depth = depth;
    if (info.hSubMenu != nullptr) {
      addItems(info.hSubMenu, depth + 1, report);
    }
  }
}

}  // namespace

/// Fills the MenuReport that `data` points to.
extern "C" __declspec(dllexport) DWORD WINAPI reportMenu(void* data) {
  auto& report = *static_cast<MenuReport*>(data);
  report.count = 0;
  addItems(report.menu != nullptr ? report.menu : GetMenu(report.window), 0, report);
  return 0;
}
