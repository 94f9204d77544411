#pragma once

#include <cstdint>
#include <string>

#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Content and behavior of an image's view.
class ImageClient {
 public:
  virtual ~ImageClient() = default;

  /// `box` is relative to the view's top left corner.
  virtual void paintImage(HDC dc, const Rect& box) = 0;
  virtual void scrollImage(bool isVertical, ScrollAction action) = 0;
  /// `delta` is 120 per notch of the wheel.
  virtual void wheelImage(bool isVertical, std::int32_t delta) = 0;
  virtual void fileDropped(const std::wstring& name) = 0;
};

/// The child window that shows an image. It can have the focus, for the scroll keys, and accepts dropped files.
class ImageWindow final : public CustomWindow {
 public:
  ImageWindow(HWND parent, ImageClient& client);

 private:
  LRESULT answer(UINT message, WPARAM wParam, LPARAM lParam) override;
  void paint();
  bool keyPressed(WPARAM key);
  void filesDropped(WPARAM wParam);

  ImageClient& client_;
};

}  // namespace quillhue
