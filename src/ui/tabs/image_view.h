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

/// Shows an image with scroll bars. While the image is remapped, the result replaces it row by row.
class ImageView final : private ImageClient {
 public:
  /// `fileDropped` is called with the name of a file that is dropped on the image.
  ImageView(const WindowContext& context, std::function<void(const std::wstring& name)> fileDropped);

  [[nodiscard]] HWND handle() const { return view_.handle(); }

  /// Shows another image from its top left corner, or none if null. The view keeps pointers to the image and the
  /// result. After destroying one of them, call this function or showResult() before the view is painted again.
  void showImage(const WorkImage* image);
  /// Shows the first `rows` rows of the result instead of the image's rows.
  void showResult(const RemappedImage* result, std::int32_t rows);
  /// Shows new rows of the result. All rows above them must be shown already.
  void addRows(const RemappedImage& result, const RowRange& rows);
  /// Returns the visible rows and a few rows below them. Only these need to be added.
  [[nodiscard]] RowRange visibleRows() const;

  void layout(const UseLayout& layout);
  void show(bool visible);
  /// Enables or disables scrolling.
  void enable(bool enabled);
  /// Handles a notification of a scroll bar. Returns false if it comes from another control.
  bool scrollNotification(HWND control, WPARAM wParam);

 private:
  /// One direction: its scroll bar and the first visible pixel.
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
  [[nodiscard]] std::string tooltipAt(Point point) const override;
  [[nodiscard]] AccessibleElement accessibleElement(std::int32_t index) override;
  void accessibleAct(std::int32_t /*index*/) override {}

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
