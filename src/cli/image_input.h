#pragma once

#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/console.h"
#include "core/palette.h"
#include "formats/byte_source.h"
#include "formats/work_image.h"

namespace quillhue::cli {

/// Reads the pixels of an image file, or of standard input for "-". The color of pixels that are less than half opaque
/// is blended with `blank`. With `standard`, reads by the published descriptions of the formats.
[[nodiscard]] std::expected<WorkImage, std::string> readImage(const std::string& file, bool standard,
                                                              PaletteEntry blank, Console& console);

/// The pixels of an image file, and its palette as `info` shows it if it has one.
struct ImageFile {
  WorkImage image;
  std::optional<Palette> palette;
  /// True if an entry is neither fully opaque nor fully transparent.
  bool isPartlyTransparent = false;
};
[[nodiscard]] std::expected<ImageFile, std::string> readImageFile(const std::string& file, bool standard,
                                                                  Console& console);

/// How many pixels of an image use each entry of a palette.
struct ImageUse {
  std::vector<std::uint64_t> pixels;
  /// Pixels that use no entry of the palette.
  std::uint64_t other = 0;
  /// Pixels of an image without a palette that are less than half opaque. They use no entry.
  std::uint64_t transparent = 0;
};

/// A pixel of an image with indexes uses the entry of its index, any other pixel the first entry of exactly its color.
[[nodiscard]] ImageUse countUse(const WorkImage& image, const Palette& palette);

}  // namespace quillhue::cli
