#include "ui/win32/guarded.h"

namespace quillhue {

void reportNoMemory(HWND window, UINT message) noexcept {
  // A window procedure has no object of its own to keep this in.
  static bool isReporting = false;
  if (message == WM_PAINT) {
    ValidateRect(window, nullptr);
  }
  if (message == WM_PAINT || isReporting) {
    return;
  }
  isReporting = true;
  const HWND owner = window == nullptr ? nullptr : GetLastActivePopup(GetAncestor(window, GA_ROOT));
  MessageBoxW(owner, L"There is not enough free memory.", L"Error", MB_OK | MB_ICONERROR);
  isReporting = false;
}

}  // namespace quillhue
