#include "ui/tabs/values_tab.h"

#include <array>

#include "colormodes/color_models.h"
#include "ui/logic/menus.h"
#include "ui/logic/palette_commands.h"
#include "ui/logic/values_layout.h"
#include "ui/main_window.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

namespace {

constexpr std::size_t at(Bar bar) { return static_cast<std::size_t>(bar); }

}  // namespace

ValuesTab::ValuesTab(MainWindow& window)
    : PaletteTab(window, kValuesPopup),
      editor_(window.slot(), window.settings(), *this),
      bars_(window.handle(), editor_, window.scale()) {
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
  nameChannels();
  // Below the controls that lie on it.
  SetWindowPos(bars_.handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
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
    case WM_DRAWITEM:
      bars_.paint(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hDC);
      return TRUE;
    case WM_NOTIFY:
      if (stepField(std::array{&channels_[0].field, &channels_[1].field, &channels_[2].field},
                    *reinterpret_cast<const NMHDR*>(lParam))) {
        return TRUE;
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
  if (code == EN_CHANGE) {
    editor_.fieldChanged(bar, channels_[at(bar)].field.value());
  } else if (code == EN_KILLFOCUS) {
    editor_.showValues();
  }
}

void ValuesTab::modelChosen() {
  editor_.chooseModel(chosenItem(models_.get()));
  nameChannels();
}

void ValuesTab::show() {
  editor_.refreshValues();
  PaletteTab::show();
}

bool ValuesTab::copy() { return editor_.copy(window().services().clipboard); }

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
  }
  editor_.showValues();
  moveTo(models_.get(), layout.modelList);
  moveTo(bars_.handle(), layout.surface);
}

void ValuesTab::showControls(bool visible) {
  for (Channel& channel : channels_) {
    quillhue::show(channel.label.get(), visible);
    channel.field.show(visible);
  }
  for (const HWND control : {modelLabel_.get(), models_.get(), bars_.handle()}) {
    quillhue::show(control, visible);
  }
}

void ValuesTab::showChannel(Bar bar, const ValueRange& range, std::int32_t value) {
  NumberField& field = channels_[at(bar)].field;
  field.setRange(range);
  field.setValue(value);
}

void ValuesTab::entryChanged(std::int32_t index) {
  repaintEntry(index);
  if (index == editor_.currentEntry()) {
    bars_.repaintBars();
  }
}

}  // namespace quillhue
