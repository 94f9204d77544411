#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "formats/work_image.h"
#include "remap/remapped_image.h"
#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/logic/use_layout.h"
#include "ui/logic/wheel_sum.h"
#include "ui/tabs/image_window.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

struct WindowContext;

/// Shows an image, or the part of it that is scrolled to, and what becomes of it row by row.
class ImageView final : private ImageClient {
 public:
  /// `fileDropped` gets the name of a file that is dropped on the image.
  ImageView(const WindowContext& context, std::function<void(const std::wstring& name)> fileDropped);

  [[nodiscard]] HWND handle() const { return view_.handle(); }

  /// Another image, from its corner on, or none. It and the result are looked at until the next call for them, which
  /// may come just after their end.
  void showImage(const WorkImage* image);
  /// The first `rows` rows of the result in place of the image's.
  void showResult(const RemappedImage* result, std::int32_t rows);
  /// These rows of the result are new, and all above them were there before.
  void addRows(const RemappedImage& result, const RowRange& rows);
  /// The rows for which it is worth while to be added.
  [[nodiscard]] RowRange visibleRows() const;

  void layout(const UseLayout& layout);
  void show(bool visible);
  /// A view that is disabled stays where it is.
  void enable(bool enabled);
  /// A notification of a scroll bar; false for one of anything else.
  bool scrollNotification(HWND control, WPARAM wParam);

 private:
  /// A direction: its bar, and the first pixel in view.
  struct Scrolling {
    Window bar;
    ScrollRange range{};
    std::int32_t position = 0;
    WheelSum wheel{};
  };

  void paintImage(HDC dc, const Rect& box) override;
  void scrollImage(bool isVertical, ScrollAction action) override;
  void wheelImage(bool isVertical, std::int32_t delta) override;
  void fileDropped(const std::wstring& name) override { fileDropped_(name); }

  void scrollTo(Scrolling& scrolling, std::int32_t position);
  void refreshScrolling();

  const WindowContext& context_;
  std::function<void(const std::wstring& name)> fileDropped_;
  Scrolling horizontal_;
  Scrolling vertical_;
  ImageWindow view_;
  Size viewSize_;
  std::int32_t areaHeight_ = 0;
  bool isEnabled_ = true;
  const WorkImage* image_ = nullptr;
  const RemappedImage* result_ = nullptr;
  std::int32_t resultRows_ = 0;
};

}  // namespace quillhue
