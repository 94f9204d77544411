#include "ui/tabs/palette_tab.h"

#include <algorithm>
#include <cstddef>

#include "ui/logic/entry_texts.h"
#include "ui/win32/controls.h"
#include "ui/win32/drawing.h"
#include "ui/window_context.h"

namespace quillhue {

PaletteTab::PaletteTab(WindowContext& context, std::int32_t contextMenu)
    : context_(context), contextMenu_(contextMenu), gridWindow_(context.window, *this) {}

PaletteDocument& PaletteTab::document() const { return *context_.document(); }

LRESULT PaletteTab::otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_CONTEXTMENU && openContextMenu(pointOf(lParam))) {
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

bool PaletteTab::openContextMenu(Point screenPoint) {
  const bool isByKey = screenPoint == Point{-1, -1};
  if (isByKey) {
    if (!gridWindow_.hasFocus() || !hasCurrentEntry()) {
      return false;
    }
    POINT point = toSystem(contextMenuPoint(grid_, currentEntry()));
    ClientToScreen(gridWindow_.handle(), &point);
    context_.frame.openContextMenu(contextMenu_, fromSystem(point));
    return true;
  }
  POINT onGrid = toSystem(screenPoint);
  ScreenToClient(gridWindow_.handle(), &onGrid);
  const Point point = fromSystem(onGrid);
  if (!grid_.paletteArea().contains(point)) {
    return false;
  }
  const ContextClick click = contextClick(grid_, point, document().getSize());
  chooseEntry(click.currentEntry);
  context_.frame.updateMenus();
  if (click.opensMenu) {
    context_.frame.openContextMenu(contextMenu_, screenPoint);
  }
  return click.opensMenu;
}

void PaletteTab::layout(const Rect& area) {
  const GridLayout grid(area, document().getSize(), context_.scale);
  if (grid != grid_) {
    grid_ = grid;
    const Rect cells = grid_.paletteArea();
    moveTo(gridWindow_.handle(), boxAt({area.left, area.top}, {cells.width(), cells.height()}));
  }
  layOutControls();
}

void PaletteTab::paletteChanged() {
  followPalette();
  repaintGrid();
}

void PaletteTab::documentReplaced(DocumentChange change) {
  change == DocumentChange::replaced ? beginDocument() : followPalette();
  repaintGrid();
}

void PaletteTab::show() {
  quillhue::show(gridWindow_.handle(), true);
  showControls(true);
  isShown_ = true;
  showEntry();
}

void PaletteTab::hide() {
  isShown_ = false;
  typedEntry_.clear();
  gridWindow_.hideTooltip();
  context_.frame.showEntryText({});
  quillhue::show(gridWindow_.handle(), false);
  showControls(false);
}

bool PaletteTab::hasCurrentEntry() const { return document().contains(currentEntry()); }

void PaletteTab::paintGrid(HDC dc, const Rect& box) {
  GridPicture shown = picture();
  shown.hasFocus = gridWindow_.hasFocus();
  quillhue::paintGrid(dc, box, grid_, shown);
}

void PaletteTab::typeDigit(char digit) {
  typedEntry_.add(digit);
  showEntry();
}

void PaletteTab::endNumber() {
  if (const auto index = typedEntry_.finish(document().getSize())) {
    chooseEntry(*index);
    context_.frame.updateMenus();
  }
  showEntry();
}

void PaletteTab::cancelNumber() {
  typedEntry_.clear();
  showEntry();
}

std::string PaletteTab::tooltipAt(Point point) {
  const std::int32_t index = grid_.hitTest(point);
  return document().contains(index) ? tooltipOf(index) : "";
}

void PaletteTab::repaintGrid() {
  repaint(gridWindow_.handle());
  showEntry();
}

void PaletteTab::repaintEntry(std::int32_t index) {
  if (document().contains(index)) {
    repaint(gridWindow_.handle(), grid_.cellBox(index));
  }
  showEntry();
}

void PaletteTab::showEntry() {
  // A tab that is not shown follows changes of the document too.
  if (!isShown_) {
    return;
  }
  gridWindow_.hideTooltip();
  const GridPicture shown = picture();
  context_.frame.showEntryText(typedEntry_.isEmpty() ? entryStatusText(shown.palette, shown.currentEntry)
                                                     : typedEntry_.statusText());
  announceEntry(shown);
}

void PaletteTab::announceEntry(const GridPicture& shown) {
  if (shown.currentEntry != announcedEntry_) {
    announcedEntry_ = shown.currentEntry;
    if (gridWindow_.hasFocus()) {
      announce(EVENT_OBJECT_FOCUS, gridWindow_.handle(), accessibleFocus());
    }
  }
  if (!std::ranges::equal(shown.selected, announcedSelection_)) {
    announcedSelection_.assign(shown.selected.begin(), shown.selected.end());
    announce(EVENT_OBJECT_SELECTIONWITHIN, gridWindow_.handle());
  }
}

std::int32_t PaletteTab::accessibleCount() { return document().getSize(); }

AccessibleElement PaletteTab::accessibleElement(std::int32_t index) {
  if (index == kWindow) {
    return {.name = "Palette", .role = ROLE_SYSTEM_TABLE};
  }
  const GridPicture shown = picture();
  const auto place = static_cast<std::size_t>(index);
  const bool isSelected = shown.selected.empty() ? index == shown.currentEntry : shown.selected[place] != 0;
  return {.name = entryName(shown.palette, index),
          .role = ROLE_SYSTEM_CELL,
          .description = numbersText(shown.palette.entry(index)),
          .action = "Select",
          .state = STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE | (isSelected ? STATE_SYSTEM_SELECTED : 0),
          .box = grid_.cellBox(index)};
}

std::int32_t PaletteTab::accessibleFocus() { return hasCurrentEntry() ? currentEntry() : kWindow; }

std::int32_t PaletteTab::accessibleAt(Point point) {
  const std::int32_t index = grid_.hitTest(point);
  return document().contains(index) ? index : kWindow;
}

void PaletteTab::accessibleAct(std::int32_t index) {
  accessibleChoose(index);
  pressSpace({});
}

void PaletteTab::accessibleChoose(std::int32_t index) {
  chooseEntry(index);
  context_.frame.updateMenus();
}

}  // namespace quillhue
