#pragma once

#include <string_view>

#include "core/palette_entry.h"
#include "formats/byte_source.h"
#include "pictures/picture_decoder.h"

namespace quillhue {

/// File name patterns of formats that Windows or its extensions can decode, beside those of pictureKinds().
inline constexpr std::string_view kSystemImagePatterns = "*.gif;*.heic;*.ico;*.jxr;*.tif;*.tiff;*.webp";

/// Loads a PNG, JPEG or PNM image, or an image in any other format for which the system has a decoder. Blends
/// transparent pixels with `blank`. Refuses all other files with unrecognisedType.
[[nodiscard]] PictureResult loadOtherImage(ByteSource& source, PaletteEntry blank);

}  // namespace quillhue
