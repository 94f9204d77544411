#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/work_image.h"
#include "remap/remap.h"
#include "remap/remapped_image.h"
#include "ui/logic/use_controls.h"
#include "ui/number_field.h"
#include "ui/tabs/image_view.h"
#include "ui/tabs/tab.h"
#include "ui/win32/handle.h"

namespace quillhue {

class MainWindow;

/// "Use Palette": loads an image, remaps it onto the palette, shows and saves what becomes of it.
class UseTab final : public Tab {
 public:
  explicit UseTab(MainWindow& window);

  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void layout(const Rect& area) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  /// An image keeps the colors it was made with.
  void paletteChanged() override {}
  void documentReplaced(DocumentChange change) override;
  void show() override { showControls(true); }
  void hide() override { showControls(false); }
  bool copy() override;
  void paste() override;
  void clear() override;
  void menuCommand(std::int32_t /*command*/) override {}
  [[nodiscard]] bool hasCurrentEntry() const override { return false; }

 private:
  class Progress;

  [[nodiscard]] Window makeControl(const wchar_t* windowClass, std::string_view text, DWORD style) const;
  /// Those that are neither of the view nor of a number field.
  [[nodiscard]] std::vector<HWND> controls() const;
  void showControls(bool visible);
  [[nodiscard]] UseState state() const;
  void refreshLoadControls();
  void refreshProtectControls();
  void refreshControls();

  [[nodiscard]] HWND modeButton(RemapMode mode) const { return modes_[static_cast<std::size_t>(mode)].get(); }
  void buttonClicked(HWND button);
  void chooseMode(RemapMode mode);
  void load(const std::wstring& name);
  void loadByDialog();
  void imageChanged();
  void process();
  void runOn(const WorkImage& image);
  [[nodiscard]] RemapOptions options();
  void saveRemappedBitmap();

  MainWindow& window_;
  ImageView view_;
  Window load_;
  // In the order of RemapMode.
  std::array<Window, 3> modes_;
  Window protectColor_;
  Window colorLabel_;
  NumberField color_;
  Window protectGrid_;
  Window widthLabel_;
  NumberField gridWidth_;
  Window heightLabel_;
  NumberField gridHeight_;
  Window process_;
  Window saveAs_;
  Window status_;
  Window surface_;

  std::optional<WorkImage> image_;
  std::optional<RemappedImage> result_;
  RemapMode mode_ = RemapMode::maintain;
  bool isBusy_ = false;
  bool stops_ = false;
};

}  // namespace quillhue
