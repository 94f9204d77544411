#pragma once

#include <cstdint>
#include <expected>

#include "core/palette.h"
#include "formats/images/image_loader.h"

namespace quillhue {

/// The header of a PCX file. Layout: ZSoft, "PCX Technical Reference Manual" (1991).
struct PcxHeader {
  std::uint8_t version = 0;
  bool isCompressed = false;
  std::int32_t width = 0;
  std::int32_t height = 0;
  /// Bits per pixel and plane: 1, 2, 4 or 8.
  unsigned bits = 0;
  unsigned planes = 0;
  /// Bytes per row and plane. May be more than the pixels need.
  std::uint32_t bytesPerRow = 0;

  [[nodiscard]] bool hasPalette() const { return bits * planes <= 8; }
};

/// Returns true if the file begins like a PCX file.
[[nodiscard]] bool isPcxFile(ByteSource& source);

/// Reads the header. Refuses depths other than 1, 2, 3, 4, 8 and 24 bits per pixel with pcxDepth, and sizes outside
/// image_limits.h.
[[nodiscard]] std::expected<PcxHeader, Failure> readPcxHeader(ByteSource& source);

/// Reads the palette, if the file has one. With 1 bit per pixel it is black and white or two colors of the header. With
/// 2 to 4 bits it is in the header, and with 8 bits behind the pixels; there a missing palette is refused with
/// pcxUnrecognised.
[[nodiscard]] std::expected<Palette, Failure> readPcxPalette(ByteSource& source, const PcxHeader& header);

/// Decodes the pixels. They are indexes if the file has a palette. Refuses a file that ends before its pixels do with
/// pictureDamaged. Throws std::bad_alloc.
[[nodiscard]] ImageResult readPcxPixels(ByteSource& source, const PcxHeader& header);

}  // namespace quillhue
