#pragma once

#include <windows.h>
// Needs windows.h before it.
#include <commctrl.h>

#include <array>
#include <cstdint>
#include <optional>

#include "colormodes/channel_editor.h"
#include "ui/logic/bars_layout.h"
#include "ui/number_field.h"
#include "ui/tabs/palette_tab.h"
#include "ui/win32/handle.h"

namespace quillhue {

/// "Edit Values": the current entry as three numbers of a color model, which bars, fields and the wheel change.
class ValuesTab final : public PaletteTab, private ChannelView {
 public:
  explicit ValuesTab(MainWindow& window);

  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  /// What is changed from now on is a step of its own, so that undoing it leads to what was saved.
  void documentSaved() override { editor_.endRun(); }
  void show() override;
  void copy() override;
  void paste() override;
  void clear() override;
  void menuCommand(std::int32_t command) override;

  void pressGrid(Point point, GridSelection::Keys keys) override;
  void dragGrid(Point /*point*/) override {}
  void releaseGrid() override {}
  void moveByKey(GridKey key, GridSelection::Keys keys) override;
  void pressSpace(GridSelection::Keys /*keys*/) override {}
  void releaseShift() override {}
  [[nodiscard]] HCURSOR gridCursor() const override { return nullptr; }

 private:
  // One channel's controls. The label has no size: it is the field's name for a screen reader.
  struct Channel {
    Window label;
    NumberField field;
    Window tooltip;
  };

  [[nodiscard]] std::int32_t currentEntry() const override { return editor_.currentEntry(); }
  void chooseEntry(std::int32_t index) override;
  [[nodiscard]] GridPicture picture() override;
  void followPalette() override { editor_.paletteChanged(); }
  void beginDocument() override { editor_.documentReplaced(); }
  void layOutControls() override;
  void showControls(bool visible) override;

  void showChannel(Bar bar, const ValueRange& range, std::int32_t value) override;
  void entryChanged(std::int32_t index) override;

  [[nodiscard]] BarsLayout bars() const;
  [[nodiscard]] std::optional<Bar> barOfField(HWND field) const;
  void fieldNotification(Bar bar, WORD code);
  bool stepField(NMUPDOWN& step);
  void modelChosen();
  void nameChannels();
  void paintSurface(HDC dc) const;
  void pressBars(Point point);
  void dragBars(Point point);
  void turnWheel(Point screenPoint, std::int32_t delta);
  [[nodiscard]] Point onSurface(Point inWindow) const;

  std::array<Channel, kBars.size()> channels_;
  Window modelLabel_;
  Window models_;
  Window surface_;
  Point surfaceCorner_;
  // Changes of the fields that are not the user's.
  bool isShowing_ = false;
  ChannelEditor editor_;
};

}  // namespace quillhue
