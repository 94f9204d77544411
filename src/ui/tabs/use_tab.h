#pragma once
#include "ui/tabs/tab.h"
namespace quillhue {
class MainWindow;
class UseTab final : public Tab {
 public:
  explicit UseTab(MainWindow&) {}
  LRESULT otherMessage(HWND w, UINT m, WPARAM a, LPARAM b) override { return DefWindowProcW(w, m, a, b); }
  void layout(const Rect&) override {}
  void controlNotification(HWND, WPARAM) override {}
  void paletteChanged() override {}
  void documentReplaced(DocumentChange) override {}
  void show() override {}
  void hide() override {}
  void copy() override {}
  void paste() override {}
  void clear() override {}
  void menuCommand(std::int32_t) override {}
  bool hasCurrentEntry() const override { return false; }
};
}
