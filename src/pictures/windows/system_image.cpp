#include "pictures/windows/system_image.h"

#include "formats/image_limits.h"
#include "pictures/windows/frame_reader.h"

namespace quillhue {

PictureResult decodeSystemImage(PictureBytes file, PaletteEntry blank) {
  Frame frame(file);
  const auto format = frame.format();
  if (!format) {
    return std::unexpected(Failure::unrecognisedType);
  }
  const auto [width, height] = frame.size();
  if (const auto failure = checkImageSize(width, height)) {
    return std::unexpected(*failure);
  }
  const bool isIndexed = format->kind == SampleKind::index;
  const auto colors = isIndexed ? frame.colors() : std::nullopt;
  if (isIndexed && !colors) {
    return std::unexpected(Failure::pictureDamaged);
  }
  SampleRows rows(static_cast<std::int32_t>(width), static_cast<std::int32_t>(height), *format, blank, colors);
  if (!frame.read(rows, *format)) {
    return std::unexpected(Failure::pictureDamaged);
  }
  return rows.take();
}

}  // namespace quillhue
