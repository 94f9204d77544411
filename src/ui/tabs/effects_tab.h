#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <string_view>

#include "effects/effect_editor.h"
#include "ui/logic/grid_selection.h"
#include "ui/number_field.h"
#include "ui/tabs/palette_tab.h"
#include "ui/win32/handle.h"

namespace quillhue {

/// "Apply Effects": selects entries on the grid, and changes those that are selected.
class EffectsTab final : public PaletteTab {
 public:
  explicit EffectsTab(MainWindow& window);

  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  void show() override;
  bool copy() override;
  void paste() override;
  void clear() override;
  void menuCommand(std::int32_t command) override;

  void pressGrid(Point point, GridSelection::Keys keys) override;
  void dragGrid(Point point) override;
  void releaseGrid() override { selection_.finish(); }
  void moveByKey(GridKey key, GridSelection::Keys keys) override;
  void pressSpace(GridSelection::Keys keys) override;
  void releaseShift() override { selection_.releaseShift(); }
  [[nodiscard]] HCURSOR gridCursor() const override;

 private:
  [[nodiscard]] std::int32_t currentEntry() const override { return selection_.currentEntry(); }
  void chooseEntry(std::int32_t index) override;
  [[nodiscard]] GridPicture picture() override;
  void followPalette() override { selection_.paletteChanged(); }
  void beginDocument() override { selection_.documentReplaced(); }
  void layOutControls() override;
  void showControls(bool visible) override;

  [[nodiscard]] Window makeButton(std::string_view text, DWORD kind) const;
  /// The channels whose boxes are ticked.
  [[nodiscard]] ChannelMask mask() const;
  void buttonClicked(HWND button);
  void showValue();

  Cursor rowCursor_;
  std::array<Window, 3> channelBoxes_;
  Window previewBox_;
  Window reset_;
  Window valueLabel_;
  NumberField value_;
  Window effectLabel_;
  Window effects_;
  Window apply_;
  Window surface_;
  GridSelection selection_;
  EffectEditor editor_;
};

}  // namespace quillhue
