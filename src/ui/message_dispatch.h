#pragma once

#include "ui/win32/system.h"

namespace quillhue {

/// Passes a message of the main window or its controls to the accelerators, the keyboard navigation or its own window.
void dispatchMessage(HWND window, HACCEL accelerators, MSG& message);

}  // namespace quillhue
