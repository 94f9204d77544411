#pragma once

#include <cstdint>
#include <expected>

#include "pictures/picture_decoder.h"

namespace quillhue {

/// The frame header of a JPEG file.
struct JpegHeader {
  std::int32_t width = 0;
  std::int32_t height = 0;
  /// Gray 1, YCbCr or RGB 3, CMYK or YCCK 4.
  std::uint8_t components = 0;
};

/// Reads the headers and checks that the file has an end. Refuses as PictureKind::decode says.
[[nodiscard]] std::expected<JpegHeader, Failure> readJpegHeader(PictureBytes file);

/// Decodes the samples by the system's means. Refuses with pictureDamaged, or with notEnoughMemory.
[[nodiscard]] PictureResult decodeJpegSamples(PictureBytes file, const JpegHeader& header);

}  // namespace quillhue
