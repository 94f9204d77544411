#pragma once

#include <cstdint>
#include <string>

#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/tabs/hover_tip.h"
#include "ui/win32/accessible.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Content and behavior of an image's view.
class ImageClient : public AccessibleContent {
 public:
  /// `box` is relative to the view's top left corner.
  virtual void paintImage(HDC dc, const Rect& box) = 0;
  virtual void scrollImage(bool isVertical, ScrollAction action) = 0;
  /// `delta` is 120 per notch of the wheel.
  virtual void wheelImage(bool isVertical, std::int32_t delta) = 0;
  virtual void fileDropped(const std::wstring& name) = 0;
  /// Returns the tooltip for a point, or an empty text for none.
  [[nodiscard]] virtual std::string tooltipAt(Point point) const = 0;
};

/// The child window that shows an image. It can have the focus, for the scroll keys, and accepts dropped files.
class ImageWindow final : public CustomWindow {
 public:
  ImageWindow(HWND parent, ImageClient& client);

  /// Repaints the whole view or a box of it, because the content has changed.
  void contentChanged();
  void contentChanged(const Rect& box);

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  void paint();
  bool keyPressed(WPARAM key);
  void filesDropped(WPARAM wParam);

  ImageClient& client_;
  HoverTip tip_;
  Accessibility accessibility_;
};

}  // namespace quillhue
