#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <functional>
#include <new>
#include <string_view>
#include <thread>
#include <utility>

#include "ui/win32/custom_window.h"
#include "ui/win32/guarded.h"
#include "ui/win32/subclassed_control.h"

namespace quillhue {
namespace {

/// A window that has no memory for one message.
class Failing final : public CustomWindow {
 public:
  explicit Failing(UINT message) : message_(message) {
    EXPECT_TRUE(registerClass(windowClass(L"QuillhueFailing")));
    isCreated_ = create({.windowClass = L"QuillhueFailing", .style = WS_POPUP, .width = 50, .height = 50});
  }
  [[nodiscard]] bool isCreated() const { return isCreated_; }

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == message_) {
      throw std::bad_alloc();
    }
    return DefWindowProcW(handle(), message, wParam, lParam);
  }

  UINT message_;
  bool isCreated_;
};

class FailingControl final : public SubclassedControl {
 public:
  explicit FailingControl(Window control) : SubclassedControl(std::move(control)) {}

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override {
    return message == WM_APP ? throw std::bad_alloc() : systemAnswer(message, wParam, lParam);
  }
};

// Returns the uppermost visible message box of the thread, or null.
HWND messageBox(DWORD thread) {
  HWND found = nullptr;
  EnumThreadWindows(
      thread,
      [](HWND window, LPARAM result) -> BOOL {
        std::array<wchar_t, 16> name{};
        GetClassNameW(window, name.data(), static_cast<int>(name.size()));
        if (IsWindowVisible(window) == 0 || std::wstring_view(name.data()) != L"#32770") {
          return TRUE;
        }
        *reinterpret_cast<HWND*>(result) = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&found));
  return found;
}

// Runs an action that shows this number of message boxes, one after the other, and closes each. Another message to
// `window` that fails while a box is open shows no second one.
void expectBoxes(int expected, HWND window, const std::function<void()>& act) {
  int boxes = 0;
  const DWORD thread = GetCurrentThreadId();
  std::thread user([&] {
    for (int tries = 0; tries < 1000 && boxes < expected; ++tries) {
      if (HWND box = messageBox(thread); box != nullptr) {
        ++boxes;
        SendMessageTimeoutW(window, WM_APP, 0, 0, SMTO_NORMAL, 1000, nullptr);
        EXPECT_EQ(messageBox(thread), box);
        SendMessageTimeoutW(box, WM_COMMAND, IDOK, 0, SMTO_NORMAL, 1000, nullptr);
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  });
  act();
  user.join();
  EXPECT_EQ(boxes, expected);
}

TEST(Guarded, AMessageWithoutMemoryShowsOneBox) {
  const Failing window(WM_APP);
  expectBoxes(1, window.handle(), [&] { EXPECT_EQ(SendMessageW(window.handle(), WM_APP, 1, 0), 0); });
  FailingControl control(
      Window(CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr)));
  expectBoxes(1, window.handle(), [&] { EXPECT_EQ(SendMessageW(control.handle(), WM_APP, 0, 0), 0); });
  expectBoxes(1, nullptr, [] { EXPECT_FALSE(Failing(WM_CREATE).isCreated()); });
}

TEST(Guarded, PaintingWithoutMemoryEndsAndShowsNoBox) {
  const Failing window(WM_PAINT);
  ShowWindow(window.handle(), SW_SHOWNA);
  InvalidateRect(window.handle(), nullptr, FALSE);
  expectBoxes(0, nullptr, [&] { UpdateWindow(window.handle()); });
  EXPECT_EQ(GetUpdateRect(window.handle(), nullptr, FALSE), 0);
  EXPECT_EQ(messageBox(GetCurrentThreadId()), nullptr);
}

}  // namespace
}  // namespace quillhue
