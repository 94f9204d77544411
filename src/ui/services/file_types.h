#pragma once

#include <vector>

#include "ui/win32/file_dialog.h"

namespace quillhue {

/// The file types that each of the program's dialogs offers, in its order. They come from the catalogues.

[[nodiscard]] std::vector<FileType> openPaletteTypes();
[[nodiscard]] std::vector<FileType> openImageTypes();
/// The type of PaletteFormat f stands at f - 1.
[[nodiscard]] std::vector<FileType> savePaletteTypes();
[[nodiscard]] std::vector<FileType> saveBitmapTypes();

}  // namespace quillhue
