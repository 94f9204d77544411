#pragma once

#include <optional>
#include <string>

#include "core/services.h"
#include "formats/work_image.h"

namespace quillhue {

/// Loads an image file in place of `image`. One that can't be loaded shows one error message, leaves the image as it
/// was and answers false.
[[nodiscard]] bool loadImageFile(const std::wstring& fileName, std::optional<WorkImage>& image, Messages& messages);

}  // namespace quillhue
