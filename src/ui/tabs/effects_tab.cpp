#include "ui/tabs/effects_tab.h"

#include "commands/command_table.h"
#include "core/commands/exchange.h"
#include "effects/effects.h"
#include "ui/logic/entry_texts.h"
#include "ui/logic/menus.h"
#include "ui/win32/controls.h"
#include "ui/window_context.h"

namespace quillhue {

EffectsTab::EffectsTab(WindowContext& context)
    : PaletteTab(context, kEffectsPopup),
      rowCursor_(static_cast<HCURSOR>(
          LoadImageW(GetModuleHandleW(nullptr), L"ROWCURSOR", IMAGE_CURSOR, 0, 0, LR_DEFAULTSIZE))),
      channelBoxes_{{addButton("&Red", BS_AUTOCHECKBOX, &EffectsLayout::red),
                     addButton("&Green", BS_AUTOCHECKBOX, &EffectsLayout::green),
                     addButton("&Blue", BS_AUTOCHECKBOX, &EffectsLayout::blue)}},
      previewBox_(addButton("Pre&view", BS_AUTOCHECKBOX, &EffectsLayout::preview)),
      reset_(addButton("Re&set", BS_PUSHBUTTON, &EffectsLayout::reset)),
      selection_(context.slot, context.settings()),
      editor_(context.slot, context.settings(), context.services.clipboard) {
  const HWND parent = context.window;
  // The labels have size 0. They only name the controls for screen readers.
  controls_.add(createControl(parent, nullptr, {.windowClass = L"Static", .text = "Value:"}));
  value_ = NumberField(parent, context.font, ES_RIGHT);
  controls_.add(value_, &EffectsLayout::value);
  controls_.add(createControl(parent, nullptr, {.windowClass = L"Static", .text = "Effect:"}));
  effects_ =
      controls_.add(createControl(parent, context.font,
                                  {.windowClass = L"ComboBox", .style = WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST}),
                    &EffectsLayout::effectList);
  apply_ = addButton("&Apply", BS_PUSHBUTTON, &EffectsLayout::apply);
  controls_.add(createControl(parent, nullptr, {.windowClass = L"Static", .style = WS_CLIPSIBLINGS}),
                &EffectsLayout::surface);
  for (const HWND box : channelBoxes_) {
    tick(box, true);
  }
  tick(previewBox_, true);
  for (const EffectDescription* const effect : effects()) {
    addItem(effects_, effect->label);
  }
  chooseItem(effects_, context.settings().effect);
}

HWND EffectsTab::addButton(std::string_view text, DWORD kind, Rect EffectsLayout::* box) {
  return controls_.add(createControl(context().window, context().font,
                                     {.windowClass = L"Button", .text = text, .style = WS_TABSTOP | kind}),
                       box);
}

ChannelMask EffectsTab::mask() const {
  ChannelMask ticked = 0;
  for (const Channel channel : kChannels) {
    if (isTicked(channelBoxes_[channel])) {
      ticked |= maskOf(channel);
    }
  }
  return ticked;
}

LRESULT EffectsTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY && controls_.step(*reinterpret_cast<const NMHDR*>(lParam))) {
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
  // The clipboard may have changed while another tab was active.
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
  } else if (control == effects_) {
    if (code == CBN_SELCHANGE) {
      editor_.choose(chosenItem(effects_));
      showValue();
      repaintGrid();
    }
  } else if (code == BN_CLICKED) {
    buttonClicked(control);
  }
}

void EffectsTab::buttonClicked(HWND button) {
  if (button == reset_) {
    editor_.reset();
    value_.setValue(editor_.effect().getValue());
  } else if (button == apply_) {
    selection_.finish();
    editor_.apply(mask());
    value_.setValue(editor_.effect().getValue());
  }
  // The check boxes determine what the preview shows.
  repaintGrid();
}

void EffectsTab::showValue() {
  const Effect& effect = editor_.effect();
  // Read the value first, because updating the field reports a change, which sets the effect's value.
  const std::int32_t value = effect.getValue();
  value_.setRange(effect.range());
  value_.setValue(value);
}

bool EffectsTab::copy() { return copySelection(document(), context().services.clipboard); }

void EffectsTab::paste() {
  pasteIntoSelection(document(), mask(), context().services.clipboard);
  repaintGrid();
}

void EffectsTab::clear() {
  clearSelection(document(), mask(), context().settings().blank);
  repaintGrid();
}

void EffectsTab::change(const Command& command) {
  selection_.finish();
  command.change(
      {.document = document(), .settings = context().settings(), .mask = mask(), .currentEntry = currentEntry()});
  repaintGrid();
}

void EffectsTab::pressGrid(Point point, GridSelection::Keys keys) {
  selection_.press(grid(), point, keys);
  repaintGrid();
  context().frame.updateMenus();
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
  context().frame.updateMenus();
}

void EffectsTab::pressSpace(GridSelection::Keys keys) {
  if (selection_.pressCurrent(grid().columns(), keys)) {
    repaintGrid();
  }
}

HCURSOR EffectsTab::gridCursor() const {
  return context().settings().selectionMode == SelectionMode::row ? rowCursor_.get() : nullptr;
}

void EffectsTab::chooseEntry(std::int32_t index) {
  selection_.moveTo(index);
  repaintGrid();
}

GridPicture EffectsTab::picture() {
  const Palette& preview = editor_.preview(mask());
  const Palette& own = document().getPalette();
  return {.palette = isTicked(previewBox_) ? preview : own, .selected = own.selected(), .currentEntry = currentEntry()};
}

std::string EffectsTab::tooltipOf(std::int32_t index) {
  const Palette& own = document().getPalette();
  return entryTooltip(own, index, numbersText(own.entry(index)), &picture().palette);
}

void EffectsTab::layOutControls() {
  controls_.move(effectsLayout(grid(), context().scale));
  showValue();
}

void EffectsTab::showControls(bool visible) { controls_.show(visible); }

}  // namespace quillhue
