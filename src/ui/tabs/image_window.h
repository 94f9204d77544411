#pragma once

#include <cstdint>
#include <string>

#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/win32/custom_window.h"
#include "ui/win32/system.h"

namespace quillhue {

/// What a view of an image shows and does.
class ImageClient {
 public:
  virtual ~ImageClient() = default;

  /// `box` is relative to the view's corner.
  virtual void paintImage(HDC dc, const Rect& box) = 0;
  virtual void scrollImage(bool isVertical, ScrollAction action) = 0;
  /// The wheel turned, 120 a notch.
  virtual void wheelImage(bool isVertical, std::int32_t delta) = 0;
  virtual void fileDropped(const std::wstring& name) = 0;
};

/// The child window in which an image is seen. It takes the focus, for the keys that scroll, and dropped files.
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
