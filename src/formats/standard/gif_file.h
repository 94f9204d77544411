#pragma once

#include <cstdint>
#include <expected>
#include <optional>

#include "core/palette.h"
#include "formats/images/image_loader.h"

namespace quillhue {

/// The first image of a GIF file. Layout: CompuServe, "Graphics Interchange Format, Version 89a" (1990).
struct GifFrame {
  /// The size of the canvas, which contains the whole image.
  std::int32_t canvasWidth = 0;
  std::int32_t canvasHeight = 0;
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool isInterlaced = false;
  /// The offsets of the file's palette and of this image's own, and their numbers of entries; 0 if missing.
  std::uint64_t globalTable = 0;
  std::int32_t globalEntries = 0;
  std::uint64_t localTable = 0;
  std::int32_t localEntries = 0;
  std::optional<std::uint8_t> transparentIndex;
  /// The offset of the compressed pixels; 0 if the file has no image.
  std::uint64_t pixels = 0;
};

/// Reads the file's blocks up to the first image.
[[nodiscard]] GifFrame readGifFrame(ByteSource& source);

/// Decodes the image. The transparent index has the color `blank`. Pixels of the canvas outside the image have the
/// transparent index or, without one, index 0. Refuses a file without a palette with gifNoGlobalPalette, one without a
/// complete image with pictureDamaged, and a size outside image_limits.h. Throws std::bad_alloc.
[[nodiscard]] ImageResult readGifPixels(ByteSource& source, const GifFrame& frame, PaletteEntry blank);

}  // namespace quillhue
