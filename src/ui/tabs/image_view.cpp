#include "ui/tabs/image_view.h"

#include <optional>
#include <utility>

#include "ui/logic/entry_texts.h"
#include "ui/tabs/image_painter.h"
#include "ui/tabs/scroll_bar.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/window_context.h"

namespace quillhue {

ImageView::ImageView(const WindowContext& context, std::function<void(const std::wstring& name)> fileDropped)
    : context_(context),
      fileDropped_(std::move(fileDropped)),
      horizontal_{.bar = createControl(context.window, nullptr, {.windowClass = L"ScrollBar", .style = SBS_HORZ})},
      vertical_{.bar = createControl(context.window, nullptr, {.windowClass = L"ScrollBar", .style = SBS_VERT})},
      view_(context.window, *this) {}

void ImageView::showImage(const WorkImage* image) {
  image_ = image;
  showResult(nullptr, 0);
  horizontal_.position = 0;
  vertical_.position = 0;
  refreshScrolling();
}

void ImageView::showResult(const RemappedImage* result, std::int32_t rows) {
  result_ = result;
  resultRows_ = rows;
  view_.contentChanged();
  announce(EVENT_OBJECT_NAMECHANGE, view_.handle());
}

void ImageView::addRows(const RemappedImage& result, const RowRange& rows) {
  if (rows.isEmpty()) {
    return;
  }
  result_ = &result;
  resultRows_ = rows.end;
  const std::int32_t top = vertical_.position;
  view_.contentChanged({0, rows.begin - top, viewSize_.width, rows.end - top});
}

RowRange ImageView::visibleRows() const {
  return quillhue::visibleRows(vertical_.position, areaHeight_, context_.scale);
}

void ImageView::layout(const UseLayout& layout) {
  viewSize_ = {layout.view.width(), layout.view.height()};
  areaHeight_ = layout.imageArea.height();
  moveTo(view_.handle(), layout.view);
  moveTo(horizontal_.bar.get(), layout.horizontalBar);
  moveTo(vertical_.bar.get(), layout.verticalBar);
  refreshScrolling();
}

void ImageView::show(bool visible) {
  for (const HWND control : {view_.handle(), horizontal_.bar.get(), vertical_.bar.get()}) {
    quillhue::show(control, visible);
  }
}

void ImageView::enable(bool enabled) {
  isEnabled_ = enabled;
  refreshScrolling();
}

bool ImageView::scrollNotification(HWND control, WPARAM wParam) {
  for (Scrolling* const scrolling : {&horizontal_, &vertical_}) {
    if (control == scrolling->bar.get()) {
      if (const auto action = scrollActionOf(LOWORD(wParam))) {
        scrollTo(*scrolling,
                 scrolled(*action, scrolling->position, trackedPosition(control, HIWORD(wParam)), scrolling->range));
      }
      return true;
    }
  }
  return false;
}

void ImageView::paintImage(HDC dc, const Rect& box) {
  fillBoxWithSystemColor(dc, box, COLOR_APPWORKSPACE);
  if (image_ == nullptr) {
    return;
  }
  const Point offset{horizontal_.position, vertical_.position};
  if (result_ != nullptr) {
    paintRows({dc, box, offset}, *result_, context_.settings().blank, {0, resultRows_});
  }
  paintRows({dc, box, offset}, *image_, {resultRows_, image_->height()});
}

std::string ImageView::tooltipAt(Point point) const {
  const Point pixel{point.x + horizontal_.position, point.y + vertical_.position};
  if (result_ != nullptr && pixel.y < resultRows_) {
    return pixelTooltip(*result_, context_.settings().blank, pixel);
  }
  return image_ != nullptr ? pixelTooltip(*image_, pixel) : "";
}

AccessibleElement ImageView::accessibleElement(std::int32_t /*index*/) {
  const auto size = image_ != nullptr ? std::optional(Size{image_->width(), image_->height()}) : std::nullopt;
  return {.name = imageName(size, result_ != nullptr), .role = ROLE_SYSTEM_GRAPHIC};
}

void ImageView::scrollImage(bool isVertical, ScrollAction action) {
  Scrolling& scrolling = isVertical ? vertical_ : horizontal_;
  scrollTo(scrolling, scrolled(action, scrolling.position, scrolling.position, scrolling.range));
}

void ImageView::wheelImage(bool isVertical, std::int32_t delta) {
  // Pixels per notch.
  constexpr std::int32_t kStep = 48;
  Scrolling& scrolling = isVertical ? vertical_ : horizontal_;
  scrollTo(scrolling, scrolling.range.clamp(scrolling.position - scrolling.wheel.add(delta, kStep)));
}

void ImageView::scrollTo(Scrolling& scrolling, std::int32_t position) {
  if (isEnabled_ && position != scrolling.position) {
    scrolling.position = position;
    showScrolling(scrolling.bar.get(), scrolling.range, position);
    view_.contentChanged();
  }
}

void ImageView::refreshScrolling() {
  horizontal_.range = {image_ != nullptr ? image_->width() : 0, viewSize_.width};
  vertical_.range = {image_ != nullptr ? image_->height() : 0, viewSize_.height};
  for (Scrolling* const scrolling : {&horizontal_, &vertical_}) {
    const std::int32_t position = scrolling->range.clamp(scrolling->position);
    if (position != scrolling->position) {
      scrolling->position = position;
      view_.contentChanged();
    }
    showScrolling(scrolling->bar.get(), scrolling->range, position);
    // Nothing can be scrolled if the whole image is visible.
    quillhue::enable(scrolling->bar.get(), isEnabled_ && scrolling->range.last() > 0);
  }
}

}  // namespace quillhue
