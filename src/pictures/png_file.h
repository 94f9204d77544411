#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <vector>

#include "pictures/sample_rows.h"

namespace quillhue {

/// What a PNG file says of its image, and the part of it that a decoder needs.
struct PngFile {
  std::int32_t width = 0;
  std::int32_t height = 0;
  SampleFormat format;
  bool isInterlaced = false;
  /// Of an image of indexes.
  std::optional<PictureColors> colors;
  std::optional<TransparentColor> transparentColor;
  /// A PNG file with the same samples and no ancillary chunks, so that gamma, profiles and animations are the same on
  /// all systems: they have no effect.
  std::vector<std::uint8_t> samples;
};

/// Reads all chunks but those that hold the samples. Refuses as PictureKind::decode says.
[[nodiscard]] std::expected<PngFile, Failure> readPngFile(PictureBytes file);

/// The checksum of a chunk's tag and data, annex D of the recommendation: ISO 3309's CRC-32.
[[nodiscard]] std::uint32_t pngChecksum(PictureBytes bytes);

/// Decodes the samples by the system's means. Refuses with pictureDamaged.
[[nodiscard]] PictureResult decodePngSamples(const PngFile& png, PaletteEntry blank);

}  // namespace quillhue
