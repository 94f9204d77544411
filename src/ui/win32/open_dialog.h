#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// Returns the dialog that is open over a window and waits for the user, or the window itself. The result does not
/// depend on which of the two was active last, because a program in the background may also open a dialog.
[[nodiscard]] HWND openDialogOf(HWND window);

}  // namespace quillhue
