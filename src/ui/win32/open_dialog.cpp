#include "ui/win32/open_dialog.h"

namespace quillhue {

HWND openDialogOf(HWND window) {
  // The system's class of dialogs.
  constexpr const wchar_t* kDialogClass = L"#32770";
  HWND dialog = nullptr;
  while ((dialog = FindWindowExW(nullptr, dialog, kDialogClass, nullptr)) != nullptr) {
    if (GetWindow(dialog, GW_OWNER) == window && IsWindowVisible(dialog) && IsWindowEnabled(dialog)) {
      return dialog;
    }
  }
  return window;
}

}  // namespace quillhue
