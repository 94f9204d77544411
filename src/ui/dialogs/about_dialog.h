#pragma once

namespace quillhue {

class DialogOwner;

/// Shows the program's name and version, and returns when the user closes the dialog.
void showAboutDialog(const DialogOwner& owner);

}  // namespace quillhue
