#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "colormodes/channel_editor.h"
#include "core/enum_array.h"
#include "ui/logic/values_layout.h"
#include "ui/number_field.h"
#include "ui/tabs/bars_view.h"
#include "ui/tabs/page_controls.h"
#include "ui/tabs/palette_tab.h"
#include "ui/win32/control_tips.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The tab "Edit Values": edits the current entry as three numbers of a color model, by bars, fields and the wheel.
class ValuesTab final : public PaletteTab, private ChannelView {
 public:
  explicit ValuesTab(WindowContext& context);

  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  void show() override;
  bool copy() override;
  void paste() override;
  void clear() override;
  void change(const Command& command) override;
  void editColor() override;

  void pressGrid(Point point, GridSelection::Keys keys) override;
  void dragGrid(Point /*point*/) override {}
  void releaseGrid() override {}
  void moveByKey(GridKey key, GridSelection::Keys keys) override;
  void pressSpace(GridSelection::Keys /*keys*/) override {}
  void releaseShift() override {}
  [[nodiscard]] HCURSOR gridCursor() const override { return nullptr; }

 private:
  // Controls of one channel. The label has size 0 and only names the field for screen readers.
  struct Channel {
    HWND label = nullptr;
    NumberField field{};
  };

  [[nodiscard]] std::int32_t currentEntry() const override { return editor_.currentEntry(); }
  void chooseEntry(std::int32_t index) override;
  [[nodiscard]] GridPicture picture() override;
  [[nodiscard]] std::string tooltipOf(std::int32_t index) override;
  void followPalette() override { editor_.paletteChanged(); }
  void beginDocument() override { editor_.documentReplaced(); }
  void layOutControls() override;
  void showControls(bool visible) override;

  void showChannel(Bar bar, const ValueRange& range, std::int32_t value) override;
  void entryChanged(std::int32_t index) override;

  [[nodiscard]] std::optional<Bar> barOfField(HWND field) const;
  void fieldNotification(Bar bar, WORD code);
  void modelChosen();
  void nameChannels();

  ControlTips tips_;
  PageControls<ValuesLayout> controls_;
  EnumArray<Bar, Channel, kBars.size()> channels_;
  HWND models_ = nullptr;
  ChannelEditor editor_;
  BarsView bars_;
};

}  // namespace quillhue
