#include "ui/tabs/bars_view.h"

#include "ui/tabs/bars_painter.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

BarsView::BarsView(HWND parent, ChannelEditor& editor, Scale scale)
    // Without SS_NOTIFY, mouse messages would go to the window below the static control.
    : SubclassedControl(createControl(parent, nullptr,
                                      {.windowClass = L"Static", .style = SS_OWNERDRAW | SS_NOTIFY | WS_CLIPSIBLINGS})),
      editor_(editor),
      scale_(scale) {}

LRESULT BarsView::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      press(pointOf(lParam));
      return 0;
    case WM_MOUSEMOVE:
      drag(pointOf(lParam));
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      editor_.releaseBar();
      return 0;
    case WM_MOUSEWHEEL:
      turnWheel(pointOf(lParam), GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    default:
      return DefSubclassProc(handle(), message, wParam, lParam);
  }
}

BarsLayout BarsView::layout() const { return {clientSize(handle()), scale_}; }

void BarsView::paint(HDC dc) const {
  RECT clip{};
  GetClipBox(dc, &clip);
  const BackBuffer buffer(dc, fromSystem(clip));
  paintBars(buffer.get(), fromSystem(clip), layout(), editor_.mode(), scale_);
}

void BarsView::repaintBars() const { repaint(handle(), layout().changingBox()); }

void BarsView::press(Point point) {
  if (const auto bar = layout().barAt(point)) {
    editor_.pressBar(*bar);
    SetCapture(handle());
  }
}

void BarsView::drag(Point point) {
  const BarsLayout bars = layout();
  editor_.dragBar(bars.heightAt(point.y), bars.usableHeight());
}

void BarsView::turnWheel(Point screenPoint, std::int32_t delta) {
  POINT point = toSystem(screenPoint);
  ScreenToClient(handle(), &point);
  const auto bar = layout().barAt(fromSystem(point));
  if (bar != wheelBar_) {
    wheel_.reset();
    wheelBar_ = bar;
  }
  if (bar) {
    editor_.turnWheel(*bar, wheel_.add(delta));
  }
}

}  // namespace quillhue
