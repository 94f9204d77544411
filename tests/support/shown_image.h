#pragma once

#include <expected>
#include <string>

#include "formats/failure.h"
#include "formats/work_image.h"
#include "support/palettes.h"

namespace quillhue {

/// "3x2, 256 (4,5,6): 000102 010000 (1 is transparent)": size, palette with its color 1, the rows in hexadecimal. For
/// an image without a palette, digits 1 show the transparent pixels of each row. Or the failure's text.
inline std::string shown(const std::expected<WorkImage, Failure>& image) {
  if (!image) {
    return std::string(textOf(image.error()));
  }
  std::string text = std::to_string(image->width()) + 'x' + std::to_string(image->height());
  const auto& palette = image->palette();
  if (palette) {
    text += ", " + std::to_string(palette->getSize()) + " (" + show(createPalette(1, palette->entry(1))) + ')';
  }
  text += ':';
  std::string transparent;
  for (std::int32_t y = 0; y < image->height(); ++y) {
    text += ' ' + hexOf(image->row(y));
    for (std::size_t x = 0; !palette && image->hasTransparency() && x < image->transparentRow(y).size(); ++x) {
      transparent += x == 0 ? " " : "";
      transparent += image->transparentRow(y)[x] != 0 ? '1' : '0';
    }
  }
  for (std::size_t index = 0; index < 256; ++index) {
    transparent += image->transparentIndexes()[index] ? ' ' + std::to_string(index) : "";
  }
  return text + (transparent.empty() ? "" : ", transparent:" + transparent);
}

}  // namespace quillhue
