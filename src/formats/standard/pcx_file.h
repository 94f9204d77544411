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
  /// Per pixel and plane: 1, 2, 4 or 8.
  unsigned bits = 0;
  unsigned planes = 0;
  /// Of each plane; may be longer than the pixels need.
  std::uint32_t bytesPerRow = 0;

  [[nodiscard]] bool hasPalette() const { return bits * planes <= 8; }
};

/// True for the bytes that all PCX files begin with.
[[nodiscard]] bool isPcxFile(ByteSource& source);

/// Refuses with pcxDepth all but 1, 2, 4, 8 and 24 bits a pixel, and by its size as image_limits.h says.
[[nodiscard]] std::expected<PcxHeader, Failure> readPcxHeader(ByteSource& source);

/// The palette of a file that has one: black and white or two colors of the header for 1 bit a pixel, of the header for
/// 2 to 4 bits, and behind the pixels for 8 bits. Refuses with pcxUnrecognised a file of 8 bits without it.
[[nodiscard]] std::expected<Palette, Failure> readPcxPalette(ByteSource& source, const PcxHeader& header);

/// Decodes the pixels, for a file with a palette as indexes into it. Refuses with pictureDamaged a file that ends
/// before them. Throws std::bad_alloc.
[[nodiscard]] ImageResult readPcxPixels(ByteSource& source, const PcxHeader& header);

}  // namespace quillhue
