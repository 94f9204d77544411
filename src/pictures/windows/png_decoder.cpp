#include "pictures/png_file.h"
#include "pictures/windows/frame_reader.h"

namespace quillhue {

PictureResult decodePngSamples(const PngFile& png, PaletteEntry blank) {
  Frame frame(png.samples, GUID_ContainerFormatPng);
  const auto format = frame.format();
  if (!format || (format->kind == SampleKind::index) != png.colors.has_value() ||
      frame.size() != Frame::Size{png.width, png.height}) {
    return std::unexpected(Failure::pictureDamaged);
  }
  SampleRows rows(png.width, png.height, *format, blank, png.colors);
  if (png.transparentColor) {
    rows.setTransparentColor(*png.transparentColor);
  }
  if (!frame.read(rows, *format)) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return rows.take();
}

}  // namespace quillhue
