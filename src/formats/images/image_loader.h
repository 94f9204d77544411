#pragma once

#include <cstdint>
#include <expected>
#include <string_view>

#include "formats/byte_source.h"
#include "formats/failure.h"
#include "formats/work_image.h"

namespace quillhue {

using ImageResult = std::expected<WorkImage, Failure>;

/// One layout of image files.
struct ImageLoader {
  /// For scripts.
  std::string_view name;
  /// The file name patterns of the Open dialog.
  std::string_view patterns;
  /// True when the first four bytes are this layout's. The catalogue asks in order, and the first true counts.
  bool (*matches)(ByteSource& source);
  /// Loads a file that matches. Pixels that the file has no data for are zero.
  ImageResult (*load)(ByteSource& source);
};

}  // namespace quillhue
