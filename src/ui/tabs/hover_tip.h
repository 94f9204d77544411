#pragma once

#include <functional>
#include <string>

#include "ui/logic/geometry.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A tooltip whose text depends on the point of the window under the pointer. It appears when the pointer rests,
/// follows it, and disappears on any other input, during drags, and while a menu or dialog is open. It takes neither
/// the focus nor clicks.
class HoverTip {
 public:
  /// Returns the text for a point of the window's client area. Empty for no tooltip. Lines end with a line feed.
  using TextAt = std::function<std::string(Point point)>;

  HoverTip(const CustomWindow& window, TextAt textAt) : window_(window), textAt_(std::move(textAt)) {}

  /// Call this for each message of the window before anything else.
  void note(UINT message, WPARAM wParam, LPARAM lParam);
  /// Call this also when the content of the window has changed.
  void hide();

 private:
  void pointerMoved(Point point);
  void show(const std::string& text);
  /// Whether the pointer is still over the window, and nothing else has the mouse.
  [[nodiscard]] bool mayShow() const;
  [[nodiscard]] TTTOOLINFOW tool() const;

  const CustomWindow& window_;
  TextAt textAt_;
  // Made when it is first shown.
  Window tip_;
  std::string shown_;
  bool isTracking_ = false;
};

}  // namespace quillhue
