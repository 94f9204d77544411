#pragma once

#include <span>

#include "formats/exports/export_format.h"

namespace quillhue {

extern const ExportFormat kHexExport;
extern const ExportFormat kPaintNetExport;
extern const ExportFormat kAseExport;
extern const ExportFormat kAcoExport;
extern const ExportFormat kJsonExport;
extern const ExportFormat kCExport;

/// All formats that only the tool writes. They are no file types of the Save As dialog and have no format code.
[[nodiscard]] std::span<const ExportFormat* const> exportFormats();

}  // namespace quillhue
