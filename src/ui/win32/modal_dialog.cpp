#include "ui/win32/modal_dialog.h"

#include "ui/win32/guarded.h"

namespace quillhue {

void ModalDialog::run(HWND owner, const wchar_t* templateName, HFONT font) {
  font_ = font;
  DialogBoxParamW(GetModuleHandleW(nullptr), templateName, owner, dialogProcedure, reinterpret_cast<LPARAM>(this));
}

void ModalDialog::focus(int id) const {
  SendMessageW(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(id)), TRUE);
}

void ModalDialog::close() const { EndDialog(window_, 0); }

INT_PTR CALLBACK ModalDialog::dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    reinterpret_cast<ModalDialog*>(lParam)->window_ = window;
  }
  auto* dialog = reinterpret_cast<ModalDialog*>(GetWindowLongPtrW(window, DWLP_USER));
  return dialog == nullptr
             ? FALSE
             : guarded(window, message, INT_PTR{TRUE}, [&] { return dialog->answer(message, wParam, lParam); });
}

INT_PTR ModalDialog::answer(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      initialize();
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDCANCEL) {
        close();
      } else {
        command(LOWORD(wParam), HIWORD(wParam));
      }
      return TRUE;
    case WM_NOTIFY:
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, notified(*reinterpret_cast<const NMHDR*>(lParam)) ? TRUE : FALSE);
      return TRUE;
    case WM_DESTROY:
      closing();
      return TRUE;
    default:
      return FALSE;
  }
}

void ModalDialog::initialize() {
  if (font_ != nullptr) {
    EnumChildWindows(
        window_,
        [](HWND child, LPARAM font) -> BOOL {
          SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(font_));
  }
  opened();
  centerOverOwner();
}

void ModalDialog::centerOverOwner() const {
  RECT owner{};
  RECT dialog{};
  if (GetWindowRect(GetWindow(window_, GW_OWNER), &owner) == 0 || GetWindowRect(window_, &dialog) == 0) {
    return;
  }
  SetWindowPos(window_, nullptr, (owner.left + owner.right - (dialog.right - dialog.left)) / 2,
               (owner.top + owner.bottom - (dialog.bottom - dialog.top)) / 2, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  // Moves the dialog back onto the screen if the owner extends beyond it.
  SendMessageW(window_, DM_REPOSITION, 0, 0);
}

}  // namespace quillhue
