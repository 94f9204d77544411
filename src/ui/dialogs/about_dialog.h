#pragma once

namespace quillhue {

class DialogOwner;

/// Tells what the program is; returns when the user has seen it.
void showAboutDialog(const DialogOwner& owner);

}  // namespace quillhue
