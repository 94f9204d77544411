#include "formats/work_image.h"

#include <utility>

namespace quillhue {

WorkImage::WorkImage(std::int32_t width, std::int32_t height, std::optional<Palette> palette)
    : width_(width),
      height_(height),
      palette_(std::move(palette)),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * bytesPerPixel()) {}

}  // namespace quillhue
