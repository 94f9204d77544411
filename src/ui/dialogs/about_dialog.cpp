#include "ui/dialogs/about_dialog.h"

#include "ui/logic/window_texts.h"
#include "ui/resources/dialog_ids.h"
#include "ui/win32/controls.h"
#include "ui/win32/dialog_owner.h"
#include "ui/win32/modal_dialog.h"

namespace quillhue {

namespace {

constexpr std::int32_t kIconSize = 48;

Icon loadIcon(std::int32_t size) {
  return Icon(
      static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), L"MAINICON", IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

/// Returns the font of the program's name, twice the height of `font`.
Font nameFont(HFONT font) {
  LOGFONTW description{};
  GetObjectW(font, sizeof description, &description);
  description.lfHeight *= 2;
  return Font(CreateFontIndirectW(&description));
}

class AboutDialog final : public ModalDialog {
 public:
  explicit AboutDialog(const DialogOwner& owner)
      : owner_(owner), icon_(loadIcon(owner.scale()(kIconSize))), nameFont_(nameFont(owner.font())) {}

  void show() { run(owner_.top(), L"DBABOUT", owner_.font()); }

 private:
  void opened() override {
    SendMessageW(control(ABOUT_ICON), STM_SETICON, reinterpret_cast<WPARAM>(icon_.get()), 0);
    SendMessageW(control(ABOUT_NAME), WM_SETFONT, reinterpret_cast<WPARAM>(nameFont_.get()), FALSE);
    setWindowText(control(ABOUT_VERSION), kVersionText);
  }
  void command(int /*id*/, int /*notification*/) override { close(); }

  const DialogOwner& owner_;
  Icon icon_;
  Font nameFont_;
};

}  // namespace

void showAboutDialog(const DialogOwner& owner) { AboutDialog(owner).show(); }

}  // namespace quillhue
