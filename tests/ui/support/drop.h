#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "ui/support/program.h"

namespace quillhue {

/// Drops files on the main window or another one of the program, as an explorer of files does when the user lets them
/// go there.
void dropFiles(const Program& program, const std::vector<std::wstring>& names, HWND onto = nullptr);

}  // namespace quillhue
