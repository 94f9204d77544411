#include "ui/tabs/values_tab.h"

#include <cstddef>
#include <memory>
#include <string_view>

#include "colormodes/color_models.h"
#include "commands/command_table.h"
#include "ui/logic/entry_texts.h"
#include "ui/logic/menus.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/window_context.h"

namespace quillhue {

ValuesTab::ValuesTab(WindowContext& context)
    : PaletteTab(context, kValuesPopup),
      tips_(context.window),
      editor_(context.slot, context.settings(), *this),
      bars_(context, editor_) {
  const HWND parent = context.window;
  constexpr EnumArray<Bar, Rect ValuesLayout::*, kBars.size()> kBoxes{
      {&ValuesLayout::leftField, &ValuesLayout::middleField, &ValuesLayout::rightField}};
  for (const Bar bar : kBars) {
    Channel& channel = channels_[bar];
    channel.label = controls_.add(createControl(parent, nullptr, {.windowClass = L"Static"}));
    channel.field = NumberField(parent, context.font, ES_CENTER, WS_BORDER);
    controls_.add(channel.field, kBoxes[bar]);
  }
  controls_.add(createControl(parent, nullptr, {.windowClass = L"Static", .text = "Color model:"}));
  models_ =
      controls_.add(createControl(parent, context.font,
                                  {.windowClass = L"ComboBox", .style = WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST}),
                    &ValuesLayout::modelList);
  for (const ColorModel* const model : colorModels()) {
    addItem(models_, model->name);
  }
  chooseItem(models_, context.settings().colorMode);
  nameChannels();
  // The bars must not cover the controls that lie on them.
  SetWindowPos(bars_.handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

// Sets the labels and tooltips of the fields.
void ValuesTab::nameChannels() {
  const ChannelDescriptions& names = colorModelOf(context().settings().colorMode).channels;
  for (const Bar bar : kBars) {
    const Channel& channel = channels_[bar];
    const std::string_view name = names[static_cast<std::size_t>(bar)].name;
    setWindowText(channel.label, name);
    tips_.set(channel.field.field(), std::string(name));
  }
}

LRESULT ValuesTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  tips_.note(message, wParam);
  switch (message) {
    case WM_DRAWITEM:
      bars_.paint(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hDC);
      return TRUE;
    case WM_NOTIFY:
      if (controls_.step(*reinterpret_cast<const NMHDR*>(lParam))) {
        return TRUE;
      }
      break;
    default:
      break;
  }
  return PaletteTab::otherMessage(window, message, wParam, lParam);
}

void ValuesTab::controlNotification(HWND control, WPARAM wParam) {
  if (control == models_) {
    if (HIWORD(wParam) == CBN_SELCHANGE) {
      modelChosen();
    }
  } else if (const auto bar = barOfField(control)) {
    fieldNotification(*bar, HIWORD(wParam));
  }
}

std::optional<Bar> ValuesTab::barOfField(HWND field) const {
  for (const Bar bar : kBars) {
    if (channels_[bar].field.field() == field) {
      return bar;
    }
  }
  return std::nullopt;
}

void ValuesTab::fieldNotification(Bar bar, WORD code) {
  if (code == EN_CHANGE) {
    editor_.fieldChanged(bar, channels_[bar].field.value());
  } else if (code == EN_KILLFOCUS) {
    editor_.showValues();
  }
}

void ValuesTab::modelChosen() {
  editor_.chooseModel(chosenItem(models_));
  nameChannels();
}

void ValuesTab::show() {
  editor_.refreshValues();
  PaletteTab::show();
}

bool ValuesTab::copy() { return editor_.copy(context().services.clipboard); }

void ValuesTab::paste() { editor_.paste(context().services.clipboard); }

void ValuesTab::clear() { editor_.blank(); }

void ValuesTab::change(const Command& command) {
  command.change({.document = document(), .settings = context().settings(), .currentEntry = currentEntry()});
}

void ValuesTab::editColor() { editor_.editEntry(currentEntry(), context().windowServices.colorChooser); }

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
  context().frame.updateMenus();
}

GridPicture ValuesTab::picture() { return {.palette = document().getPalette(), .currentEntry = currentEntry()}; }

// The current entry has the numbers that are shown beside the grid.
std::string ValuesTab::tooltipOf(std::int32_t index) {
  const std::int32_t model = context().settings().colorMode;
  std::unique_ptr<ColorMode> other;
  const ColorMode& mode =
      index == currentEntry() ? editor_.mode() : createColorMode(model, index, context().slot, other);
  return entryTooltip(document().getPalette(), index, numbersText(mode, colorModelOf(model).channels));
}

void ValuesTab::layOutControls() {
  const ValuesLayout layout = valuesLayout(grid(), context().scale);
  controls_.move(layout);
  editor_.showValues();
  moveTo(bars_.handle(), layout.surface);
}

void ValuesTab::showControls(bool visible) {
  controls_.show(visible);
  quillhue::show(bars_.handle(), visible);
}

void ValuesTab::showChannel(Bar bar, const ValueRange& range, std::int32_t value) {
  NumberField& field = channels_[bar].field;
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
