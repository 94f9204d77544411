#pragma once

#include <cstdint>
#include <vector>

#include "ui/logic/grid_layout.h"
#include "ui/tabs/grid_painter.h"
#include "ui/tabs/grid_window.h"
#include "ui/tabs/tab.h"
#include "ui/win32/system.h"

namespace quillhue {

class PaletteDocument;
struct WindowContext;

/// A page that shows the palette as a grid at its left, and its controls at the right of it.
class PaletteTab : public Tab, public GridClient {
 public:
  /// `contextMenu` is that of the entries (kValuesPopup, kEffectsPopup).
  PaletteTab(WindowContext& context, std::int32_t contextMenu);

  /// Opens the context menu on an entry that is clicked with the right button or asked for by a key.
  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void layout(const Rect& area) final;
  void paletteChanged() final;
  void documentReplaced(DocumentChange change) final;
  void show() override;
  void hide() override;
  [[nodiscard]] bool hasCurrentEntry() const override;

  void paintGrid(HDC dc, const Rect& box) final;

 protected:
  [[nodiscard]] WindowContext& context() const { return context_; }
  [[nodiscard]] PaletteDocument& document() const;
  [[nodiscard]] const GridLayout& grid() const { return grid_; }

  /// Any index that is no entry for none.
  [[nodiscard]] virtual std::int32_t currentEntry() const = 0;
  /// Another current entry, as the user chose it; kNoEntry and indexes past the end included.
  virtual void chooseEntry(std::int32_t index) = 0;
  [[nodiscard]] virtual GridPicture picture() = 0;
  /// Takes the document's new colors, selection or size over into what the tab keeps of it.
  virtual void followPalette() = 0;
  /// Begins anew with another document.
  virtual void beginDocument() = 0;
  /// Moves the tab's own controls to where they stand beside the grid.
  virtual void layOutControls() = 0;
  /// Controls that appear and disappear with the tab.
  virtual void showControls(bool visible) = 0;

  void repaintGrid() const;
  void repaintEntry(std::int32_t index) const;

 private:
  bool openContextMenu(Point screenPoint);

  WindowContext& context_;
  std::int32_t contextMenu_;
  GridLayout grid_;
  GridWindow gridWindow_;
};

}  // namespace quillhue
