#include "ui/tabs/values_tab.h"

#include "colormodes/color_models.h"
#include "ui/logic/menus.h"
#include "ui/logic/palette_commands.h"
#include "ui/logic/values_layout.h"
#include "ui/main_window.h"
#include "ui/tabs/bars_painter.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

constexpr std::size_t at(Bar bar) { return static_cast<std::size_t>(bar); }

}  // namespace

ValuesTab::ValuesTab(MainWindow& window)
    : PaletteTab(window, kValuesPopup), editor_(window.slot(), window.settings(), *this) {
  const HWND parent = window.handle();
  for (Channel& channel : channels_) {
    channel.label = createControl(parent, nullptr, {.windowClass = L"Static"});
    channel.field = NumberField(parent, window.font(), ES_CENTER, WS_BORDER);
  }
  modelLabel_ = createControl(parent, nullptr, {.windowClass = L"Static", .text = "Color model:"});
  models_ = createControl(parent, window.font(),
                          {.windowClass = L"ComboBox", .style = WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST});
  for (const ColorModel* const model : colorModels()) {
    addItem(models_.get(), model->name);
  }
  chooseItem(models_.get(), window.settings().colorMode);
  surface_ = createControl(parent, nullptr, {.windowClass = L"Static", .style = SS_OWNERDRAW | WS_CLIPSIBLINGS});
  nameChannels();
}

// The text before a field and the one that appears under the pointer.
void ValuesTab::nameChannels() {
  const ChannelDescriptions& names = colorModelOf(window().settings().colorMode).channels;
  for (const Bar bar : kBars) {
    Channel& channel = channels_[at(bar)];
    setWindowText(channel.label.get(), names[at(bar)].name);
    channel.tooltip = createTooltip(window().handle(), channel.field.field(), names[at(bar)].name);
  }
}

LRESULT ValuesTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
      pressBars(onSurface(pointOf(lParam)));
      return 0;
    case WM_MOUSEMOVE:
      dragBars(onSurface(pointOf(lParam)));
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
    case WM_DRAWITEM:
      paintSurface(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hDC);
      return TRUE;
    case WM_NOTIFY:
      if (reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(UDN_DELTAPOS)) {
        return stepField(*reinterpret_cast<NMUPDOWN*>(lParam)) ? FALSE : TRUE;
      }
      break;
    default:
      break;
  }
  return PaletteTab::otherMessage(window, message, wParam, lParam);
}

void ValuesTab::controlNotification(HWND control, WPARAM wParam) {
  if (control == models_.get()) {
    if (HIWORD(wParam) == CBN_SELCHANGE) {
      modelChosen();
    }
  } else if (const auto bar = barOfField(control)) {
    fieldNotification(*bar, HIWORD(wParam));
  }
}

std::optional<Bar> ValuesTab::barOfField(HWND field) const {
  for (const Bar bar : kBars) {
    if (channels_[at(bar)].field.field() == field) {
      return bar;
    }
  }
  return std::nullopt;
}

void ValuesTab::fieldNotification(Bar bar, WORD code) {
  NumberField& field = channels_[at(bar)].field;
  if (code == EN_CHANGE && !isShowing_) {
    editor_.fieldChanged(bar, field.value());
  } else if (code == EN_KILLFOCUS) {
    isShowing_ = true;
    field.settle();
    isShowing_ = false;
  }
}

// False refuses the step.
bool ValuesTab::stepField(NMUPDOWN& step) {
  for (const Bar bar : kBars) {
    if (channels_[at(bar)].field.arrows() == step.hdr.hwndFrom) {
      step.iDelta = editor_.stepField(bar, step.iPos, step.iDelta);
      return step.iDelta != 0;
    }
  }
  return true;
}

void ValuesTab::modelChosen() {
  editor_.chooseModel(chosenItem(models_.get()));
  nameChannels();
}

void ValuesTab::show() {
  editor_.refreshValues();
  PaletteTab::show();
}

void ValuesTab::copy() { editor_.copy(window().services().clipboard); }

void ValuesTab::paste() { editor_.paste(window().services().clipboard); }

void ValuesTab::clear() { editor_.blank(); }

void ValuesTab::menuCommand(std::int32_t command) {
  if (command == command_id::kEditColor) {
    editor_.editEntry(currentEntry(), window().workplace().colorChooser);
  } else {
    runPaletteCommand(command,
                      {.document = document(), .settings = window().settings(), .currentEntry = currentEntry()});
  }
}

void ValuesTab::pressGrid(Point point, GridSelection::Keys /*keys*/) {
  if (const std::int32_t index = grid().hitTest(point); document().contains(index)) {
    chooseEntry(index);
  }
}

void ValuesTab::moveByKey(GridKey key, GridSelection::Keys /*keys*/) {
  chooseEntry(nextEntry(key, currentEntry(), document().getSize(), grid().columns()));
}

void ValuesTab::chooseEntry(std::int32_t index) {
  const std::int32_t before = currentEntry();
  editor_.setCurrentEntry(index);
  repaintEntry(before);
  window().updateMenus();
}

GridPicture ValuesTab::picture() { return {.palette = document().getPalette(), .currentEntry = currentEntry()}; }

void ValuesTab::layOutControls() {
  const ValuesLayout layout = valuesLayout(grid(), window().scale());
  for (const Bar bar : kBars) {
    channels_[at(bar)].field.move(layout.fields[at(bar)]);
    showChannel(bar, editor_.mode().channelRange(bar), editor_.mode().getValue(bar));
  }
  moveTo(models_.get(), layout.modelList);
  moveTo(surface_.get(), layout.surface);
  surfaceCorner_ = {layout.surface.left, layout.surface.top};
  repaint(surface_.get());
}

void ValuesTab::showControls(bool visible) {
  for (Channel& channel : channels_) {
    quillhue::show(channel.label.get(), visible);
    channel.field.show(visible);
  }
  for (const Window* const control : {&modelLabel_, &models_, &surface_}) {
    quillhue::show(control->get(), visible);
  }
}

void ValuesTab::showChannel(Bar bar, const ValueRange& range, std::int32_t value) {
  NumberField& field = channels_[at(bar)].field;
  isShowing_ = true;
  field.setRange(range);
  field.setValue(value);
  isShowing_ = false;
}

void ValuesTab::entryChanged(std::int32_t index) {
  repaintEntry(index);
  if (index == editor_.currentEntry()) {
    repaint(surface_.get(), bars().changingBox());
  }
}

BarsLayout ValuesTab::bars() const { return {clientSize(surface_.get()), window().scale()}; }

void ValuesTab::paintSurface(HDC dc) const {
  RECT clip{};
  GetClipBox(dc, &clip);
  const BackBuffer buffer(dc, fromSystem(clip));
  paintBars(buffer.get(), fromSystem(clip), bars(), editor_.mode(), window().scale());
}

void ValuesTab::pressBars(Point point) {
  if (const auto bar = bars().barAt(point)) {
    editor_.pressBar(*bar);
    SetCapture(window().handle());
  }
}

void ValuesTab::dragBars(Point point) {
  const BarsLayout layout = bars();
  editor_.dragBar(layout.heightAt(point.y), layout.usableHeight());
}

void ValuesTab::turnWheel(Point screenPoint, std::int32_t delta) {
  POINT point = toSystem(screenPoint);
  ScreenToClient(surface_.get(), &point);
  if (const auto bar = bars().barAt(fromSystem(point))) {
    editor_.turnWheel(*bar, delta);
  }
}

Point ValuesTab::onSurface(Point inWindow) const {
  return {inWindow.x - surfaceCorner_.x, inWindow.y - surfaceCorner_.y};
}

}  // namespace quillhue
