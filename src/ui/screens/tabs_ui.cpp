#include "ui/screens/tabs_ui.h"

#include <algorithm>
#include <string>

#include "commands/command_table.h"
#include "core/commands/statistics.h"
#include "core/utf8.h"
#include "formats/palette_file.h"
#include "ui/dialogs/new_palette_dialog.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/window_texts.h"
#include "ui/tabs/effects_tab.h"
#include "ui/tabs/use_tab.h"
#include "ui/tabs/values_tab.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/win32/system.h"
#include "ui/window_context.h"

namespace quillhue {

TabsUI::TabsUI(WindowContext& context)
    : SharedCommands(context),
      tabControl_(createControl(context.window, context.font,
                                {.windowClass = WC_TABCONTROLW, .style = WS_TABSTOP | WS_CLIPSIBLINGS})) {
  for (std::size_t i = 0; i < kTabs; ++i) {
    std::wstring title = fromUtf8(kTabTitles[i]);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = title.data();
    SendMessageW(tabControl_.get(), TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
  }
  moveTo(tabControl_.get(), frameArea(context.frame.screenArea(), context.scale));
  tabs_[0] = std::make_unique<ValuesTab>(context);
  tabs_[1] = std::make_unique<EffectsTab>(context);
  tabs_[2] = std::make_unique<UseTab>(context);
  active_ = tabs_[0].get();
  active_->layout(pageArea());
  // Places the tab control below the controls on it. This also makes it last in the tab order, which is cyclic.
  SetWindowPos(tabControl_.get(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  show(tabControl_.get(), true);
  active_->show();
  context.focus.give(tabControl_.get());
}

TabsUI::~TabsUI() {
  // Controls may send messages while they are destroyed. No tab must get them.
  active_ = nullptr;
}

Rect TabsUI::pageArea() const {
  RECT area = toSystem(frameArea(context().frame.screenArea(), context().scale));
  SendMessageW(tabControl_.get(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  return fromSystem(area);
}

CommandState TabsUI::commandState() const {
  const PaletteDocument* const document = context().document();
  if (document == nullptr || active_ == nullptr) {
    return {};
  }
  const auto page = std::ranges::find_if(tabs_, [&](const auto& tab) { return tab.get() == active_; }) - tabs_.begin();
  return {.tab = static_cast<ActiveTab>(page + static_cast<int>(ActiveTab::values)),
          .canUndo = document->canUndo(),
          .canRedo = document->canRedo(),
          .hasCurrentEntry = active_->hasCurrentEntry()};
}

void TabsUI::menuCommand(std::int32_t command) {
  const Command* const known = findCommand(command);
  if (known == nullptr || !isHandled(known->scope, commandState().tab)) {
    return;
  }
  if (known->change != nullptr) {
    active_->change(*known);
  } else {
    known->act(*this, command);
  }
  context().frame.updateMenus();
}

void TabsUI::savePalette() {
  if (save(*context().document(), context().services)) {
    context().frame.documentSaved();
  }
}

void TabsUI::savePaletteAs() {
  if (saveAs(*context().document(), context().services)) {
    context().frame.documentSaved();
  }
}

void TabsUI::cut() {
  if (active_->copy()) {
    active_->clear();
  }
}

void TabsUI::copy() { static_cast<void>(active_->copy()); }

void TabsUI::countColors() { reportColorCount(*context().document(), context().services.messages); }

void TabsUI::averageColor() { reportAverageColor(*context().document(), context().services.messages); }

void TabsUI::stepThroughHistory(void (PaletteDocument::*step)()) {
  PaletteDocument& document = *context().document();
  const std::int32_t size = document.getSize();
  (document.*step)();
  if (document.getSize() == size) {
    active_->paletteChanged();
  } else {
    rebuild(DocumentChange::resized);
  }
}

void TabsUI::resizePalette() {
  const auto fields = askNewPalette(context().windowServices.dialogOwner, context().settings(),
                                    context().services.messages, NewPaletteKind::sizeOnly);
  if (fields) {
    context().document()->resize(fields->size);
    rebuild(DocumentChange::resized);
  }
}

void TabsUI::rebuild(DocumentChange change) {
  // Hiding a control takes the focus from it.
  const HWND focused = context().focus.current();
  active_->hide();
  for (const auto& tab : tabs_) {
    tab->documentReplaced(change);
  }
  active_->layout(pageArea());
  active_->show();
  if (focused != nullptr) {
    context().focus.give(focused);
  }
  repaintAll(context().window);
  UpdateWindow(context().window);
}

LRESULT TabsUI::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_NOTIFY) {
    const auto* const notification = reinterpret_cast<const NMHDR*>(lParam);
    if (notification->hwndFrom == tabControl_.get() && notification->code == TCN_SELCHANGE) {
      chooseTab();
      return 0;
    }
  }
  if (message == WM_CTLCOLORBTN) {
    // Background of buttons, because the pages have the color of a window.
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
  }
  return active_ != nullptr ? active_->otherMessage(window, message, wParam, lParam)
                            : DefWindowProcW(window, message, wParam, lParam);
}

void TabsUI::chooseTab() {
  // Ends a drag while its tab is still active and gets the message.
  ReleaseCapture();
  active_->hide();
  const auto page = static_cast<std::size_t>(SendMessageW(tabControl_.get(), TCM_GETCURSEL, 0, 0));
  active_ = tabs_[std::min(page, kTabs - 1)].get();
  active_->layout(pageArea());
  active_->show();
  context().frame.updateMenus();
  repaintAll(context().window);
  UpdateWindow(context().window);
}

void TabsUI::stepTab(std::size_t steps) {
  FocusKeeper& focus = context().focus;
  const bool isOnTabs = focus.current() == tabControl_.get();
  const auto page = static_cast<std::size_t>(SendMessageW(tabControl_.get(), TCM_GETCURSEL, 0, 0));
  SendMessageW(tabControl_.get(), TCM_SETCURSEL, (page + steps) % kTabs, 0);
  chooseTab();
  if (!isOnTabs) {
    // The first control of the page.
    focus.give(GetNextDlgTabItem(context().window, tabControl_.get(), FALSE));
  }
}

void TabsUI::resize(Size area) {
  moveTo(tabControl_.get(), frameArea({0, 0, area.width, area.height}, context().scale));
  active_->layout(pageArea());
}

void TabsUI::controlNotification(HWND control, WPARAM wParam) {
  if (active_ != nullptr) {
    active_->controlNotification(control, wParam);
  }
}

void TabsUI::paint(HDC dc, const Rect& area) {
  for (const Rect& box : frameBackground(area, context().scale)) {
    fillBoxWithSystemColor(dc, box, COLOR_BTNFACE);
  }
}

void TabsUI::documentReplaced() { rebuild(DocumentChange::replaced); }

}  // namespace quillhue
