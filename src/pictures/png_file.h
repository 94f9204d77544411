#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <vector>

#include "pictures/sample_rows.h"

namespace quillhue {

/// The image data of a PNG file and the chunks that a decoder needs.
struct PngFile {
  std::int32_t width = 0;
  std::int32_t height = 0;
  SampleFormat format;
  bool isInterlaced = false;
  /// For an image of indexes.
  std::optional<PictureColors> colors;
  std::optional<TransparentColor> transparentColor;
  /// A PNG file with the same samples but without ancillary chunks. Gamma, profiles and animations are therefore
  /// ignored on every system.
  std::vector<std::uint8_t> samples;
};

/// Reads all chunks except the contents of those with samples. Refuses as PictureKind::decode does.
[[nodiscard]] std::expected<PngFile, Failure> readPngFile(PictureBytes file);

/// Returns the checksum of a chunk's tag and data: CRC-32 of ISO 3309, annex D of the recommendation.
[[nodiscard]] std::uint32_t pngChecksum(PictureBytes bytes);

/// Decodes the samples with the system's decoder. Refuses with pictureDamaged.
[[nodiscard]] PictureResult decodePngSamples(const PngFile& png, PaletteEntry blank);

}  // namespace quillhue
