#include "formats/exports/export_formats.h"

#include <array>

namespace quillhue {

namespace {

constexpr std::array kExports{&kHexExport, &kPaintNetExport, &kAseExport, &kAcoExport, &kJsonExport, &kCExport};

}  // namespace

std::span<const ExportFormat* const> exportFormats() { return kExports; }

}  // namespace quillhue
