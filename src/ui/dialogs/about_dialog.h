#pragma once

namespace quillhue {

class MainWindow;

/// Tells what the program is; returns when the user has seen it.
void showAboutDialog(const MainWindow& owner);

}  // namespace quillhue
