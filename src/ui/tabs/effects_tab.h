#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/enum_array.h"
#include "effects/effect_editor.h"
#include "ui/logic/effects_layout.h"
#include "ui/logic/grid_selection.h"
#include "ui/number_field.h"
#include "ui/tabs/page_controls.h"
#include "ui/tabs/palette_tab.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The tab "Apply Effects": selects entries on the grid and changes the selected entries.
class EffectsTab final : public PaletteTab {
 public:
  explicit EffectsTab(WindowContext& context);

  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  void show() override;
  bool copy() override;
  void paste() override;
  void clear() override;
  void change(const Command& command) override;

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
  [[nodiscard]] std::string tooltipOf(std::int32_t index) override;
  void followPalette() override { selection_.paletteChanged(); }
  void beginDocument() override { selection_.documentReplaced(); }
  void layOutControls() override;
  void showControls(bool visible) override;

  HWND addButton(std::string_view text, DWORD kind, Rect EffectsLayout::* box);
  /// Returns the channels whose check boxes are ticked.
  [[nodiscard]] ChannelMask mask() const;
  void buttonClicked(HWND button);
  void showValue();

  Cursor rowCursor_;
  PageControls<EffectsLayout> controls_;
  EnumArray<Channel, HWND, kChannels.size()> channelBoxes_;
  HWND previewBox_;
  HWND reset_;
  NumberField value_;
  HWND effects_ = nullptr;
  HWND apply_ = nullptr;
  GridSelection selection_;
  EffectEditor editor_;
};

}  // namespace quillhue
