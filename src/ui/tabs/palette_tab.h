#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ui/logic/grid_layout.h"
#include "ui/logic/typed_entry.h"
#include "ui/tabs/grid_painter.h"
#include "ui/tabs/grid_window.h"
#include "ui/tabs/tab.h"
#include "ui/win32/system.h"

namespace quillhue {

class PaletteDocument;
struct WindowContext;

/// A page that shows the palette as a grid on the left and its controls on the right.
class PaletteTab : public Tab, public GridClient {
 public:
  /// `contextMenu` is the context menu of entries (kValuesPopup, kEffectsPopup).
  PaletteTab(WindowContext& context, std::int32_t contextMenu);

  /// Opens the context menu of an entry on a right click or by keyboard.
  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void layout(const Rect& area) final;
  void paletteChanged() final;
  void documentReplaced(DocumentChange change) final;
  void show() override;
  void hide() override;
  [[nodiscard]] bool hasCurrentEntry() const override;

  void paintGrid(HDC dc, const Rect& box) final;
  void typeDigit(char digit) final;
  void endNumber() final;
  void cancelNumber() final;
  [[nodiscard]] std::string tooltipAt(Point point) final;

  [[nodiscard]] std::int32_t accessibleCount() final;
  [[nodiscard]] AccessibleElement accessibleElement(std::int32_t index) final;
  [[nodiscard]] std::int32_t accessibleFocus() final;
  [[nodiscard]] std::int32_t accessibleAt(Point point) final;
  void accessibleAct(std::int32_t index) final;
  void accessibleChoose(std::int32_t index) final;

 protected:
  [[nodiscard]] WindowContext& context() const { return context_; }
  [[nodiscard]] PaletteDocument& document() const;
  [[nodiscard]] const GridLayout& grid() const { return grid_; }

  /// Returns an index that is not an entry if there is no current entry.
  [[nodiscard]] virtual std::int32_t currentEntry() const = 0;
  /// Sets the current entry chosen by the user. `index` may be kNoEntry or past the end.
  virtual void chooseEntry(std::int32_t index) = 0;
  [[nodiscard]] virtual GridPicture picture() = 0;
  [[nodiscard]] virtual std::string tooltipOf(std::int32_t index) = 0;
  /// Updates the tab's state after the document's colors, selection or size have changed.
  virtual void followPalette() = 0;
  /// Resets the tab's state for another document.
  virtual void beginDocument() = 0;
  /// Moves the tab's own controls to their places beside the grid.
  virtual void layOutControls() = 0;
  /// Shows or hides the tab's own controls.
  virtual void showControls(bool visible) = 0;

  /// Repaint the grid or one cell, and update the current entry in the status bar and for screen readers. Call these
  /// after every change of the colors shown or of the current entry.
  void repaintGrid();
  void repaintEntry(std::int32_t index);

 private:
  bool openContextMenu(Point screenPoint);
  /// Updates the status bar and notifies screen readers.
  void showEntry();
  void announceEntry(const GridPicture& shown);

  WindowContext& context_;
  std::int32_t contextMenu_;
  GridLayout grid_;
  GridWindow gridWindow_;
  TypedEntry typedEntry_;
  bool isShown_ = false;
  // State last announced to screen readers.
  std::int32_t announcedEntry_ = kNoEntry;
  std::vector<std::uint8_t> announcedSelection_;
};

}  // namespace quillhue
