#include "ui/screens/tabs_ui.h"

// Needs windows.h before it.
#include <commctrl.h>

#include <algorithm>
#include <string>

#include "core/commands/statistics.h"
#include "core/utf8.h"
#include "formats/palette_file.h"
#include "ui/dialogs/new_palette_dialog.h"
#include "ui/logic/frame_layout.h"
#include "ui/logic/window_texts.h"
#include "ui/main_window.h"
#include "ui/screens/shared_commands.h"
#include "ui/tabs/effects_tab.h"
#include "ui/tabs/use_tab.h"
#include "ui/tabs/values_tab.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"

namespace quillhue {

TabsUI::TabsUI(MainWindow& window)
    : window_(window),
      tabControl_(createControl(window.handle(), window.font(),
                                {.windowClass = WC_TABCONTROLW, .style = WS_TABSTOP | WS_CLIPSIBLINGS})) {
  for (std::size_t i = 0; i < kTabs; ++i) {
    std::wstring title = fromUtf8(kTabTitles[i]);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = title.data();
    SendMessageW(tabControl_.get(), TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
  }
  moveTo(tabControl_.get(), frameArea(window.screenArea(), window.scale()));
  tabs_[0] = std::make_unique<ValuesTab>(window);
  tabs_[1] = std::make_unique<EffectsTab>(window);
  tabs_[2] = std::make_unique<UseTab>(window);
  for (const auto& tab : tabs_) {
    tab->layout(pageArea());
  }
  active_ = tabs_[0].get();
  // Below the controls that lie on it, and after them for the Tab key, which goes round.
  SetWindowPos(tabControl_.get(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  show(tabControl_.get(), true);
  active_->show();
  window_.focus().give(tabControl_.get());
}

TabsUI::~TabsUI() {
  // Messages of controls that end go to no tab.
  active_ = nullptr;
}

Rect TabsUI::pageArea() const {
  RECT area = toSystem(frameArea(window_.screenArea(), window_.scale()));
  SendMessageW(tabControl_.get(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
  return fromSystem(area);
}

CommandState TabsUI::commandState() const {
  const PaletteDocument* const document = window_.document();
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
  if (runSharedCommand(window_, command)) {
    return;
  }
  if (const Command* const known = findCommand(command);
      known == nullptr || !isHandled(known->handler, commandState().tab)) {
    return;
  }
  active_->menuCommand(command);
  frameCommand(command);
  window_.updateMenus();
}

void TabsUI::frameCommand(std::int32_t command) {
  PaletteDocument& document = *window_.document();
  Services& services = window_.services();
  switch (command) {
    case command_id::kSave:
      static_cast<void>(save(document, services));
      break;
    case command_id::kSaveAs:
      static_cast<void>(saveAs(document, services));
      break;
    case command_id::kUndo:
      stepThroughHistory(&PaletteDocument::undo);
      break;
    case command_id::kRedo:
      stepThroughHistory(&PaletteDocument::redo);
      break;
    case command_id::kCut:
      if (active_->copy()) {
        active_->clear();
      }
      break;
    case command_id::kCopy:
      static_cast<void>(active_->copy());
      break;
    case command_id::kPaste:
      active_->paste();
      break;
    case command_id::kClear:
      active_->clear();
      break;
    case command_id::kResize:
      resizePalette();
      break;
    case command_id::kCountColors:
      reportColorCount(document, services.messages);
      break;
    case command_id::kAverageColor:
      reportAverageColor(document, services.messages);
      break;
    default:
      break;
  }
}

void TabsUI::stepThroughHistory(void (PaletteDocument::*step)()) {
  PaletteDocument& document = *window_.document();
  const std::int32_t size = document.getSize();
  (document.*step)();
  if (document.getSize() == size) {
    active_->paletteChanged();
  } else {
    rebuild(DocumentChange::resized);
  }
}

void TabsUI::resizePalette() {
  if (const auto fields = askNewPalette(window_, NewPaletteKind::sizeOnly)) {
    window_.document()->resize(fields->size);
    rebuild(DocumentChange::resized);
  }
}

void TabsUI::rebuild(DocumentChange change) {
  // A control that is hidden loses the focus.
  const HWND focused = window_.focus().current();
  active_->hide();
  for (const auto& tab : tabs_) {
    tab->documentReplaced(change);
    tab->layout(pageArea());
  }
  active_->show();
  if (focused != nullptr) {
    window_.focus().give(focused);
  }
  repaintAll(window_.handle());
  UpdateWindow(window_.handle());
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
    // What a button leaves free of its box: the pages have the color of a window.
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
  }
  return active_ != nullptr ? active_->otherMessage(window, message, wParam, lParam)
                            : DefWindowProcW(window, message, wParam, lParam);
}

void TabsUI::chooseTab() {
  // Ends a drag, while the tab that it began in still hears of it.
  ReleaseCapture();
  active_->hide();
  const auto page = static_cast<std::size_t>(SendMessageW(tabControl_.get(), TCM_GETCURSEL, 0, 0));
  active_ = tabs_[std::min(page, kTabs - 1)].get();
  active_->layout(pageArea());
  active_->show();
  window_.updateMenus();
  repaintAll(window_.handle());
  UpdateWindow(window_.handle());
}

void TabsUI::resize(Size area) {
  moveTo(tabControl_.get(), frameArea({0, 0, area.width, area.height}, window_.scale()));
  active_->layout(pageArea());
}

void TabsUI::controlNotification(HWND control, WPARAM wParam) {
  if (active_ != nullptr) {
    active_->controlNotification(control, wParam);
  }
}

void TabsUI::paint(HDC dc, const Rect& area) {
  for (const Rect& box : frameBackground(area, window_.scale())) {
    fillBoxWithSystemColor(dc, box, COLOR_BTNFACE);
  }
}

void TabsUI::documentReplaced() { rebuild(DocumentChange::replaced); }

}  // namespace quillhue
