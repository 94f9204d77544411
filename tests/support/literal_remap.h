#pragma once

#include "remap/remap.h"

namespace quillhue {

/// What remapImage does, by the rules as one would write them down: a scan of the palette for every pixel and one row
/// after the other. Slow; the product has to give the same bytes and to report at the same rows.
bool literalRemap(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                  RemapProgress& progress);

}  // namespace quillhue
