#pragma once

#include <cstdint>
#include <string>

#include "ui/logic/geometry.h"
#include "ui/win32/com.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Description of a window or of a part of it for screen readers, in the terms of Microsoft Active Accessibility.
struct AccessibleElement {
  std::string name;
  /// ROLE_SYSTEM_CELL and so on.
  LONG role = 0;
  std::string value{};
  std::string description{};
  /// The verb of the default action. Empty if there is none.
  std::string action{};
  /// STATE_SYSTEM_SELECTED and so on. The system adds the states of the window: focused, invisible, unavailable.
  LONG state = 0;
  /// In client coordinates. Not used for the window itself.
  Rect box{};
};

/// The content of a window for screen readers: the window itself, kWindow, and its parts, 0 .. count - 1.
class AccessibleContent {
 public:
  static constexpr std::int32_t kWindow = -1;

  virtual ~AccessibleContent() = default;

  [[nodiscard]] virtual std::int32_t accessibleCount() { return 0; }
  [[nodiscard]] virtual AccessibleElement accessibleElement(std::int32_t index) = 0;
  /// Returns the part that has the focus if the window has it, or kWindow.
  [[nodiscard]] virtual std::int32_t accessibleFocus() { return kWindow; }
  /// Returns the part at a point of the client area, or kWindow.
  [[nodiscard]] virtual std::int32_t accessibleAt(Point /*point*/) { return kWindow; }
  /// Carries out the default action.
  virtual void accessibleAct(std::int32_t index) = 0;
  /// Makes the part the one that has the focus. The window has the focus already.
  virtual void accessibleChoose(std::int32_t /*index*/) {}
  /// Sets the value, if it can be set. Returns false for text that is no valid value.
  [[nodiscard]] virtual bool accessibleSetValue(std::int32_t /*index*/, const std::wstring& /*text*/) { return false; }
};

/// Makes a window's content accessible, from construction to destruction.
class Accessibility {
 public:
  explicit Accessibility(AccessibleContent& content) : content_(content) {}
  Accessibility(const Accessibility&) = delete;
  Accessibility& operator=(const Accessibility&) = delete;
  ~Accessibility();

  /// Whether the message asks for the content of the window.
  [[nodiscard]] static bool isAsked(UINT message, LPARAM lParam) {
    return message == WM_GETOBJECT && static_cast<LONG>(lParam) == OBJID_CLIENT;
  }
  /// Answers that message.
  [[nodiscard]] LRESULT answer(HWND window, WPARAM wParam);

 private:
  class Object;

  AccessibleContent& content_;
  // Made on the first request.
  Object* object_ = nullptr;
};

/// Announces a change of a part to screen readers (EVENT_OBJECT_FOCUS and so on).
void announce(DWORD event, HWND window, std::int32_t index = AccessibleContent::kWindow);

}  // namespace quillhue
