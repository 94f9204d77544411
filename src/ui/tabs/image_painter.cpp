#include "ui/tabs/image_painter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "core/palette.h"
#include "formats/bitmap_writer.h"

namespace quillhue {

namespace {

// BITMAPINFO with a color table for one byte per pixel.
struct BitmapDescription {
  BITMAPINFOHEADER header{};
  std::array<RGBQUAD, kMaxUsedEntries> colors{};
};

// The visible part of the image, in columns and rows.
struct Part {
  std::int32_t left = 0;
  std::int32_t width = 0;
  RowRange rows;
};

Part partInView(const ViewPart& view, std::int32_t imageWidth, const RowRange& rows) {
  const Rect& box = view.box;
  const Point offset = view.offset;
  Part part;
  part.left = std::clamp(offset.x + box.left, 0, imageWidth);
  part.width = std::clamp(offset.x + box.right, part.left, imageWidth) - part.left;
  part.rows = {std::max(offset.y + box.top, rows.begin), std::min(offset.y + box.bottom, rows.end)};
  return part;
}

// `rowOf` returns all bytes of a row of the image.
template <typename RowOf>
void paintPart(const ViewPart& view, const Part& part, std::size_t pixelBytes, std::span<const PaletteEntry> colors,
               const RowOf& rowOf) {
  if (part.width <= 0 || part.rows.isEmpty()) {
    return;
  }
  const std::size_t length = static_cast<std::size_t>(part.width) * pixelBytes;
  const std::size_t stride = (length + 3) / 4 * 4;
  std::vector<std::uint8_t> pixels(stride * static_cast<std::size_t>(part.rows.count()));
  for (std::int32_t y = part.rows.begin; y < part.rows.end; ++y) {
    const auto row = rowOf(y).subspan(static_cast<std::size_t>(part.left) * pixelBytes, length);
    std::ranges::copy(row, std::span(pixels).subspan(stride * static_cast<std::size_t>(y - part.rows.begin)).begin());
  }
  BitmapDescription description;
  description.header.biSize = sizeof description.header;
  description.header.biWidth = part.width;
  // A negative height means rows from top to bottom.
  description.header.biHeight = -part.rows.count();
  description.header.biPlanes = 1;
  description.header.biBitCount = static_cast<WORD>(8 * pixelBytes);
  const std::size_t used = std::min(colors.size(), description.colors.size());
  for (std::size_t i = 0; i < used; ++i) {
    description.colors[i] = {colors[i].blue, colors[i].green, colors[i].red, 0};
  }
  const auto height = static_cast<DWORD>(part.rows.count());
  SetDIBitsToDevice(view.dc, part.left - view.offset.x, part.rows.begin - view.offset.y, static_cast<DWORD>(part.width),
                    height, 0, 0, 0, height, pixels.data(), reinterpret_cast<const BITMAPINFO*>(&description),
                    DIB_RGB_COLORS);
}

}  // namespace

void paintRows(const ViewPart& view, const WorkImage& image, const RowRange& rows) {
  const std::optional<Palette>& palette = image.palette();
  const std::vector<PaletteEntry> colors = palette ? entriesOf(*palette) : std::vector<PaletteEntry>{};
  paintPart(view, partInView(view, image.width(), rows), image.bytesPerPixel(), colors,
            [&](std::int32_t y) { return image.row(y); });
}

void paintRows(const ViewPart& view, const RemappedImage& image, PaletteEntry blank, const RowRange& rows) {
  const auto colors = bitmapColors(image.colors(), blank);
  const std::size_t stride = paddedRowLength(image.width());
  paintPart(view, partInView(view, image.width(), rows), 1, colors,
            [&](std::int32_t y) { return image.rows().subspan(static_cast<std::size_t>(y) * stride, stride); });
}

}  // namespace quillhue
