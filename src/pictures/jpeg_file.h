#pragma once

#include <cstdint>
#include <expected>

#include "pictures/picture_decoder.h"

namespace quillhue {

/// The frame header of a JPEG file.
struct JpegHeader {
  std::int32_t width = 0;
  std::int32_t height = 0;
  /// 1 for gray, 3 for YCbCr or RGB, 4 for CMYK or YCCK.
  std::uint8_t components = 0;
};

/// Reads the headers and checks that the file has an end marker. Refuses as PictureKind::decode does.
[[nodiscard]] std::expected<JpegHeader, Failure> readJpegHeader(PictureBytes file);

/// Decodes the samples with the system's decoder. Refuses with pictureDamaged or notEnoughMemory.
[[nodiscard]] PictureResult decodeJpegSamples(PictureBytes file, const JpegHeader& header);

}  // namespace quillhue
