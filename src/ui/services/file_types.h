#pragma once

#include <vector>

#include "ui/win32/file_dialog.h"

namespace quillhue {

/// The file types offered by each file dialog, in order, taken from the catalogues.

[[nodiscard]] std::vector<FileType> openPaletteTypes();
[[nodiscard]] std::vector<FileType> openImageTypes();
/// The type of PaletteFormat f has the index f - 1.
[[nodiscard]] std::vector<FileType> savePaletteTypes();
/// The type of PNG has the index kPngType - 1.
[[nodiscard]] std::vector<FileType> saveResultTypes();
inline constexpr DWORD kPngType = 2;

}  // namespace quillhue
