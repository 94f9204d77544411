#pragma once

#include "pictures/picture_decoder.h"

namespace quillhue {

/// Decodes the first image of a file in any format for which the system has a decoder, such as GIF and TIFF. The result
/// and the refusals are those of PictureKind::decode, and unrecognisedType if there is no decoder.
[[nodiscard]] PictureResult decodeSystemImage(PictureBytes file, PaletteEntry blank);

}  // namespace quillhue
