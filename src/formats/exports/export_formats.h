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

/// Returns all formats that only the tool writes. They are not in the Save As dialog and have no format code.
[[nodiscard]] std::span<const ExportFormat* const> exportFormats();

}  // namespace quillhue
