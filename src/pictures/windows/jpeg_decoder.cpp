#include "pictures/jpeg_file.h"
#include "pictures/windows/frame_reader.h"

namespace quillhue {

PictureResult decodeJpegSamples(PictureBytes file, const JpegHeader& header) {
  Frame frame(file, GUID_ContainerFormatJpeg);
  const auto format = frame.format();
  if (!format || format->kind == SampleKind::index || frame.size() != Frame::Size{header.width, header.height}) {
    return std::unexpected(Failure::pictureDamaged);
  }
  SampleRows rows(header.width, header.height, *format, {});
  if (!frame.read(rows, *format)) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return rows.take();
}

}  // namespace quillhue
