#include "ui/logic/result_file.h"

#include <algorithm>

#include "formats/bitmap_writer.h"
#include "formats/readers/palette_reader.h"
#include "pictures/png_encoder.h"

namespace quillhue {

ResultFormat resultFormat(std::wstring_view name, ResultFormat chosen) {
  if (nameEndsWith(name, ".PNG")) {
    return ResultFormat::png;
  }
  return nameEndsWith(name, ".BMP") || nameEndsWith(name, ".DIB") ? ResultFormat::bitmap : chosen;
}

std::expected<std::vector<std::uint8_t>, Failure> composeResult(const RemappedImage& result, const Palette& palette,
                                                                PaletteEntry blank, ResultFormat format) {
  const IndexedPixels pixels{result.width(), result.height(), result.rows()};
  if (format == ResultFormat::bitmap) {
    return composeBitmap(pixels, palette, blank);
  }
  std::vector<PaletteEntry> colors = entriesOf(palette);
  colors.resize(std::min(colors.size(), std::size_t{kMaxUsedEntries}));
  return composePng({.pixels = pixels, .colors = colors, .transparent = {}});
}

}  // namespace quillhue
