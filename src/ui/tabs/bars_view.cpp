#include "ui/tabs/bars_view.h"

#include <cstddef>
#include <string>

#include "colormodes/color_models.h"
#include "ui/logic/typed_number.h"
#include "ui/tabs/bars_painter.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/window_context.h"

namespace quillhue {

BarsView::BarsView(const WindowContext& context, ChannelEditor& editor)
    // Without SS_NOTIFY, mouse messages would go to the window below the static control.
    : SubclassedControl(createControl(context.window, nullptr,
                                      {.windowClass = L"Static", .style = SS_OWNERDRAW | SS_NOTIFY | WS_CLIPSIBLINGS})),
      context_(context),
      editor_(editor) {}

LRESULT BarsView::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  if (Accessibility::isAsked(message, lParam)) {
    return accessibility_.answer(handle(), wParam);
  }
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
      return systemAnswer(message, wParam, lParam);
  }
}

BarsLayout BarsView::layout() const { return {clientSize(handle()), context_.scale}; }

void BarsView::paint(HDC dc) const {
  RECT clip{};
  GetClipBox(dc, &clip);
  const BackBuffer buffer(dc, fromSystem(clip));
  paintBars(buffer.get(), fromSystem(clip), layout(), editor_.mode(), context_.scale);
}

void BarsView::repaintBars() {
  repaint(handle(), layout().changingBox());
  for (const Bar bar : kBars) {
    if (const std::int32_t value = editor_.mode().getValue(bar); value != announced_[bar]) {
      announced_[bar] = value;
      announce(EVENT_OBJECT_VALUECHANGE, handle(), static_cast<std::int32_t>(bar));
    }
  }
}

AccessibleElement BarsView::accessibleElement(std::int32_t index) {
  if (index == kWindow) {
    return {.name = "Color", .role = ROLE_SYSTEM_GROUPING};
  }
  const Bar bar = kBars[static_cast<std::size_t>(index)];
  const ChannelDescription& channel =
      colorModelOf(context_.settings().colorMode).channels[static_cast<std::size_t>(index)];
  return {.name = std::string(channel.name),
          .role = ROLE_SYSTEM_SLIDER,
          .value = std::to_string(editor_.mode().getValue(bar)),
          .description = std::to_string(channel.range.minimum) + " to " + std::to_string(channel.range.maximum),
          .action = "Increase",
          .box = layout().barBox(bar)};
}

std::int32_t BarsView::accessibleAt(Point point) {
  const auto bar = layout().barAt(point);
  return bar ? static_cast<std::int32_t>(*bar) : kWindow;
}

void BarsView::accessibleAct(std::int32_t index) { editor_.turnWheel(kBars[static_cast<std::size_t>(index)], 1); }

bool BarsView::accessibleSetValue(std::int32_t index, const std::wstring& text) {
  const auto value = typedNumber(text);
  if (index == kWindow || !value) {
    return false;
  }
  editor_.changeChannel(kBars[static_cast<std::size_t>(index)], *value);
  return true;
}

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
