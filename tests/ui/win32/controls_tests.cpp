#include <gtest/gtest.h>

#include "ui/win32/controls.h"
#include "ui/win32/custom_window.h"

namespace quillhue {
namespace {

// A window that counts the messages about changed system colors.
class Listener final : public CustomWindow {
 public:
  explicit Listener(HWND parent) {
    static_cast<void>(registerClass(windowClass(L"Listener")));
    static_cast<void>(create({.windowClass = L"Listener", .style = WS_CHILD, .parent = parent}));
  }
  int changes = 0;

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override {
    changes += message == WM_SYSCOLORCHANGE ? 1 : 0;
    return DefWindowProcW(handle(), message, wParam, lParam);
  }
};

TEST(Controls, PassMessagesToAllChildren) {
  const Window parent(CreateWindowExW(0, L"Static", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
  const Listener first(parent.get());
  const Listener second(parent.get());
  passToChildren(parent.get(), WM_SYSCOLORCHANGE, 0, 0);
  EXPECT_EQ(first.changes, 1);
  EXPECT_EQ(second.changes, 1);
}

}  // namespace
}  // namespace quillhue
