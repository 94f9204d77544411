#pragma once

#include <optional>
#include <string>

#include "core/services.h"
#include "formats/work_image.h"

namespace quillhue {

/// Replaces `image` with an image file. If the file can't be loaded, shows one error message, keeps the image and
/// returns false.
[[nodiscard]] bool loadImageFile(const std::wstring& fileName, std::optional<WorkImage>& image, Messages& messages);

}  // namespace quillhue
