#pragma once

#include <cstdint>
#include <expected>
#include <vector>

#include "formats/byte_source.h"
#include "pictures/picture_decoder.h"

namespace quillhue {

/// Returns the format of a file, or null.
[[nodiscard]] const PictureKind* findPictureKind(ByteSource& source);

/// Reads and decodes a whole file with `decode`. Refuses a file of more than 2 GiB with imageTooLarge, a file that
/// can't be read with couldNotOpen, and one that needs too much memory with notEnoughMemory.
[[nodiscard]] PictureResult decodeFile(ByteSource& source, PaletteEntry blank, decltype(PictureKind::decode) decode);

/// Finds the format and decodes the file. Refuses a file of another format with unrecognisedType.
[[nodiscard]] PictureResult loadPicture(ByteSource& source, PaletteEntry blank);

}  // namespace quillhue
