#include "ui/tabs/effects_tab.h"

#include <cstddef>

#include "core/commands/exchange.h"
#include "effects/effects.h"
#include "ui/logic/effects_layout.h"
#include "ui/logic/menus.h"
#include "ui/logic/palette_commands.h"
#include "ui/main_window.h"
#include "ui/win32/controls.h"

namespace quillhue {

EffectsTab::EffectsTab(MainWindow& window)
    : PaletteTab(window, kEffectsPopup),
      rowCursor_(static_cast<HCURSOR>(
          LoadImageW(GetModuleHandleW(nullptr), L"ROWCURSOR", IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE))),
      channelBoxes_{makeButton("&Red", BS_AUTOCHECKBOX), makeButton("&Green", BS_AUTOCHECKBOX),
                    makeButton("&Blue", BS_AUTOCHECKBOX)},
      previewBox_(makeButton("Pre&view", BS_AUTOCHECKBOX)),
      reset_(makeButton("Re&set", BS_PUSHBUTTON)),
      // The labels have no size: they are the controls' names for a screen reader.
      valueLabel_(createControl(window.handle(), nullptr, {.windowClass = L"Static", .text = "Value:"})),
      value_(window.handle(), window.font(), ES_RIGHT),
      effectLabel_(createControl(window.handle(), nullptr, {.windowClass = L"Static", .text = "Effect:"})),
      effects_(createControl(window.handle(), window.font(),
                             {.windowClass = L"ComboBox", .style = WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST})),
      apply_(makeButton("&Apply", BS_PUSHBUTTON)),
      surface_(createControl(window.handle(), nullptr, {.windowClass = L"Static", .style = WS_CLIPSIBLINGS})),
      selection_(window.slot(), window.settings()),
      editor_(window.slot(), window.settings(), window.services().clipboard) {
  for (const Window& box : channelBoxes_) {
    tick(box.get(), true);
  }
  tick(previewBox_.get(), true);
  for (const EffectDescription* const effect : effects()) {
    addItem(effects_.get(), effect->label);
  }
  chooseItem(effects_.get(), window.settings().effect);
}

Window EffectsTab::makeButton(std::string_view text, DWORD kind) const {
  return createControl(window().handle(), window().font(),
                       {.windowClass = L"Button", .text = text, .style = WS_TABSTOP | kind});
}

ChannelMask EffectsTab::mask() const {
  ChannelMask ticked = 0;
  for (const Channel channel : kChannels) {
    if (isTicked(channelBoxes_[static_cast<std::size_t>(channel)].get())) {
      ticked |= maskOf(channel);
    }
  }
  return ticked;
}

LRESULT EffectsTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY && stepField(std::array{&value_}, *reinterpret_cast<const NMHDR*>(lParam))) {
    return TRUE;
  }
  if (message == WM_CLIPBOARDUPDATE) {
    editor_.readClipboard();
    repaintGrid();
    return 0;
  }
  return PaletteTab::otherMessage(window, message, wParam, lParam);
}

void EffectsTab::show() {
  // It may have changed while another tab was active.
  editor_.readClipboard();
  PaletteTab::show();
}

void EffectsTab::controlNotification(HWND control, WPARAM wParam) {
  const WORD code = HIWORD(wParam);
  if (control == value_.field()) {
    if (code == EN_CHANGE) {
      editor_.setValue(value_.value());
      repaintGrid();
    } else if (code == EN_KILLFOCUS) {
      value_.settle();
    }
  } else if (control == effects_.get()) {
    if (code == CBN_SELCHANGE) {
      editor_.choose(chosenItem(effects_.get()));
      showValue();
      repaintGrid();
    }
  } else if (code == BN_CLICKED) {
    buttonClicked(control);
  }
}

void EffectsTab::buttonClicked(HWND button) {
  if (button == reset_.get()) {
    editor_.reset();
    value_.setValue(editor_.effect().getValue());
  } else if (button == apply_.get()) {
    selection_.finish();
    editor_.apply(mask());
    value_.setValue(editor_.effect().getValue());
  }
  // The boxes decide what the preview shows.
  repaintGrid();
}

void EffectsTab::showValue() {
  const Effect& effect = editor_.effect();
  // Setting the number reports it as a change, so it is taken before.
  const std::int32_t value = effect.getValue();
  value_.setRange(effect.range());
  value_.setValue(value);
}

bool EffectsTab::copy() { return copySelection(document(), window().services().clipboard); }

void EffectsTab::paste() {
  pasteIntoSelection(document(), mask(), window().services().clipboard);
  repaintGrid();
}

void EffectsTab::clear() {
  clearSelection(document(), mask(), window().settings().blank);
  repaintGrid();
}

void EffectsTab::menuCommand(std::int32_t command) {
  selection_.finish();
  if (runPaletteCommand(
          command,
          {.document = document(), .settings = window().settings(), .mask = mask(), .currentEntry = currentEntry()})) {
    repaintGrid();
  }
}

void EffectsTab::pressGrid(Point point, GridSelection::Keys keys) {
  selection_.press(grid(), point, keys);
  repaintGrid();
  window().updateMenus();
}

void EffectsTab::dragGrid(Point point) {
  if (selection_.drag(grid(), point)) {
    repaintGrid();
  }
}

void EffectsTab::moveByKey(GridKey key, GridSelection::Keys keys) {
  const std::int32_t index = nextEntry(key, currentEntry(), document().getSize(), grid().columns());
  if (keys.shift) {
    selection_.extendTo(index, keys);
  } else {
    selection_.moveTo(index);
  }
  repaintGrid();
  window().updateMenus();
}

void EffectsTab::pressSpace(GridSelection::Keys keys) {
  if (selection_.pressCurrent(grid().columns(), keys)) {
    repaintGrid();
  }
}

HCURSOR EffectsTab::gridCursor() const {
  return window().settings().selectionMode == SelectionMode::row ? rowCursor_.get() : nullptr;
}

void EffectsTab::chooseEntry(std::int32_t index) {
  selection_.moveTo(index);
  repaintGrid();
}

GridPicture EffectsTab::picture() {
  const Palette& preview = editor_.preview(mask());
  const Palette& own = document().getPalette();
  return {.palette = isTicked(previewBox_.get()) ? preview : own,
          .selected = own.selected(),
          .currentEntry = currentEntry()};
}

void EffectsTab::layOutControls() {
  const EffectsLayout layout = effectsLayout(grid(), window().scale());
  moveTo(channelBoxes_[0].get(), layout.red);
  moveTo(channelBoxes_[1].get(), layout.green);
  moveTo(channelBoxes_[2].get(), layout.blue);
  moveTo(previewBox_.get(), layout.preview);
  moveTo(reset_.get(), layout.reset);
  value_.move(layout.value);
  showValue();
  moveTo(effects_.get(), layout.effectList);
  moveTo(apply_.get(), layout.apply);
  moveTo(surface_.get(), layout.surface);
}

void EffectsTab::showControls(bool visible) {
  for (const Window* const control : {&channelBoxes_[0], &channelBoxes_[1], &channelBoxes_[2], &previewBox_, &reset_,
                                      &valueLabel_, &effectLabel_, &effects_, &apply_, &surface_}) {
    quillhue::show(control->get(), visible);
  }
  value_.show(visible);
}

}  // namespace quillhue
