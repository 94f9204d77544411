#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "formats/standard/bitmap_header.h"

namespace quillhue {

/// Decodes the pixels of a bitmap that is compressed as RLE8 or RLE4 (Windows API, "Bitmap compression") into rows of
/// indexes. `rowAt` returns the row at a place in the file's order. Pixels outside the image are dropped. Returns false
/// if the file ends before the image does.
[[nodiscard]] bool decodeBitmapRuns(ByteSource& source, const BitmapHeader& header,
                                    const std::function<std::span<std::uint8_t>(std::int32_t y)>& rowAt);

}  // namespace quillhue
