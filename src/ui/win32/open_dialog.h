#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// The dialog that is open on a window and waits for the user, or the window itself. It does not depend on which of the
/// two was active last: a program that is not in the foreground may open a dialog too.
[[nodiscard]] HWND openDialogOf(HWND window);

}  // namespace quillhue
