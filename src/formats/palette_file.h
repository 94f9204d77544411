#pragma once

#include <string>
#include <string_view>

#include "core/document.h"
#include "core/palette_format.h"
#include "core/services.h"
#include "system/file_system.h"

namespace quillhue {

/// Opens a palette file as the current document. A true-color image becomes an untitled, modified palette after the
/// user has been asked how to make it. A file that can't be read shows one error message and leaves the document
/// unchanged.
void readPaletteFile(const std::wstring& fileName, DocumentSlot& slot, Services& services);

/// Writes the document's palette in this format. A palette or a format that can't be written is refused before any file
/// is changed. On success the document is unmodified and has this format and name. On failure it stays unchanged, and
/// one message is shown.
[[nodiscard]] bool writePaletteFile(PaletteDocument& document, const std::wstring& fileName, PaletteFormat format,
                                    Services& services, FileSystem& files = systemFiles());

/// Shows the Save As dialog, applies the extension rule, asks before a file is replaced, then calls writePaletteFile.
[[nodiscard]] bool saveAs(PaletteDocument& document, Services& services);

/// Writes the document to its own file, or calls saveAs if it has no format.
[[nodiscard]] bool save(PaletteDocument& document, Services& services);

/// Asks before a modified document is discarded, and saves it if the user wants that. Returns true to go ahead.
[[nodiscard]] bool askToSave(PaletteDocument& document, Services& services);

/// Appends a dot and the extension, unless the name already ends with a dot and three characters.
[[nodiscard]] std::wstring withExtension(std::wstring name, std::string_view extension);

}  // namespace quillhue
