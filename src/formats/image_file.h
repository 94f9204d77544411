#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/services.h"
#include "formats/images/image_loader.h"

namespace quillhue {

/// Loads images of formats that loadImage does not recognise. Refuses all others with unrecognisedType.
using LoadOtherImage = std::function<ImageResult(ByteSource& source)>;

/// Loads an image file into `image`. If loadImage does not recognise the format, calls `loadOther`. If the file can't
/// be loaded, shows one error message, keeps the image and returns false.
[[nodiscard]] bool loadImageFile(const std::wstring& fileName, std::optional<WorkImage>& image, Messages& messages,
                                 const LoadOtherImage& loadOther = {});

}  // namespace quillhue
