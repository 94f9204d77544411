#pragma once

#include <string>
#include <string_view>

#include "core/document.h"
#include "core/palette_format.h"
#include "core/services.h"
#include "system/file_system.h"

namespace quillhue {

/// Opens a palette file as the current document. An image of true colors becomes an untitled, modified palette, after
/// the question how to make it. A file that can't be read shows one error message and leaves the document as it was.
void readPaletteFile(const std::wstring& fileName, DocumentSlot& slot, Services& services);

/// Writes the document's palette in the format. Everything that can be refused is refused, with one message, before a
/// file is touched. On success the document is unmodified and has this format and name; otherwise it stays as it was.
[[nodiscard]] bool writePaletteFile(PaletteDocument& document, const std::wstring& fileName, PaletteFormat format,
                                    Services& services, FileSystem& files = systemFiles());

/// The Save As dialog, with the extension rule and the question before a file is replaced, then writePaletteFile.
[[nodiscard]] bool saveAs(PaletteDocument& document, Services& services);

/// Writes the document back to its own file, or saveAs where it has no format.
[[nodiscard]] bool save(PaletteDocument& document, Services& services);

/// Asks before a modified document is discarded, and saves it when the user wants that. True to go ahead.
[[nodiscard]] bool askToSave(PaletteDocument& document, Services& services);

/// The name with a dot and the extension appended, unless it already ends with a dot and three characters.
[[nodiscard]] std::wstring withExtension(std::wstring name, std::string_view extension);

}  // namespace quillhue
