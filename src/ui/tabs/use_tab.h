#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/enum_array.h"
#include "formats/images/image_loader.h"
#include "formats/work_image.h"
#include "remap/remap.h"
#include "remap/remapped_image.h"
#include "ui/logic/use_controls.h"
#include "ui/logic/use_layout.h"
#include "ui/number_field.h"
#include "ui/tabs/image_view.h"
#include "ui/tabs/page_controls.h"
#include "ui/tabs/tab.h"
#include "ui/win32/handle.h"
#include "ui/win32/system.h"

namespace quillhue {

struct WindowContext;

/// The tab "Use Palette": loads an image, remaps it onto the palette, and shows and saves the result.
class UseTab final : public Tab {
 public:
  explicit UseTab(WindowContext& context);

  LRESULT otherMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void layout(const Rect& area) override;
  void controlNotification(HWND control, WPARAM wParam) override;
  /// Does nothing: a result keeps the colors with which it was made.
  void paletteChanged() override {}
  void documentReplaced(DocumentChange change) override;
  void show() override;
  void hide() override;
  bool copy() override;
  void paste() override;
  void clear() override;
  [[nodiscard]] bool hasCurrentEntry() const override { return false; }

 private:
  class Progress;
  class Run;

  HWND add(const wchar_t* windowClass, std::string_view text, DWORD style, Rect UseLayout::* box = nullptr);
  HWND addButton(std::string_view text, DWORD style, Rect UseLayout::* box) { return add(L"Button", text, style, box); }
  void addField(NumberField& field, Rect UseLayout::* box);
  [[nodiscard]] UseState state() const;
  void refreshLoadControls();
  void refreshProtectControls();
  void refreshControls();

  void buttonClicked(HWND button);
  void chooseMode(RemapMode mode);
  void load(const std::wstring& name);
  void loadByDialog();
  void imageChanged();
  void process();
  void runOn(const WorkImage& image);
  [[nodiscard]] RemapOptions options();
  void saveResult();
  /// Returns nothing if the clipboard has no image or can't be opened.
  [[nodiscard]] std::optional<ImageResult> imageOnClipboard() const;

  WindowContext& context_;
  ImageView view_;
  PageControls<UseLayout> controls_;
  HWND load_;
  EnumArray<RemapMode, HWND, 3> modes_;
  HWND protectColor_;
  NumberField color_;
  HWND protectGrid_ = nullptr;
  HWND widthLabel_ = nullptr;
  NumberField gridWidth_;
  HWND heightLabel_ = nullptr;
  NumberField gridHeight_;
  HWND process_ = nullptr;
  HWND saveAs_ = nullptr;
  HWND status_ = nullptr;

  std::optional<WorkImage> image_;
  std::optional<RemappedImage> result_;
  RemapMode mode_ = RemapMode::maintain;
  bool isBusy_ = false;
  bool stops_ = false;
};

}  // namespace quillhue
