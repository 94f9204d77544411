#pragma once

#include "ui/win32/system.h"

/// Shows a window as large as the editor's, and handles messages until it is closed. `description` needs no instance
/// and no cursor. Returns the program's exit code.
int showOneWindow(WNDCLASSW description, int showCommand);

/// Answers the messages that a window does not answer itself. The program ends with its window.
LRESULT answerOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
