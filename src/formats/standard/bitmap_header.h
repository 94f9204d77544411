#pragma once

#include <array>
#include <cstdint>
#include <expected>
#include <optional>

#include "core/palette.h"
#include "formats/byte_source.h"
#include "formats/failure.h"

namespace quillhue {

/// The header of a Windows or OS/2 bitmap. Layouts: the Windows API's BITMAPCOREHEADER (12 bytes), BITMAPINFOHEADER
/// (40; 52 and 56 with masks), BITMAPV4HEADER (108) and BITMAPV5HEADER (124), and BITMAPINFOHEADER2 of the OS/2
/// Presentation Manager (64, or its first 16 bytes).
struct BitmapHeader {
  enum class Compression : std::uint8_t { none, rle8, rle4 };

  std::int32_t width = 0;
  std::int32_t height = 0;
  /// The first row in the file is the upper one.
  bool isTopDown = false;
  /// Per pixel: 1, 2, 4, 8, 16, 24 or 32.
  unsigned bits = 0;
  Compression compression = Compression::none;
  /// With 16 bits and more: the bits of a pixel that are red, green, blue and alpha; 0 for a missing channel.
  std::array<std::uint32_t, 4> masks{};
  /// With 8 bits and fewer: the offset of the color table, its number of entries, and the bytes of an entry.
  std::uint64_t table = 0;
  std::uint32_t entries = 0;
  std::uint32_t entrySize = 4;
  /// The offset of the pixels.
  std::uint64_t pixels = 0;
};

/// Reads the info header at `offset`. `pixels` is the offset of the pixels that the file contains; without it the
/// pixels follow the color table. Refuses other header sizes, depths and compressions with bitmapUnsupported, and an
/// image size outside image_limits.h with imageTooSmall or imageTooLarge.
[[nodiscard]] std::expected<BitmapHeader, Failure> readBitmapHeader(ByteSource& source, std::uint64_t offset,
                                                                    std::optional<std::uint64_t> pixels);

/// Reads the file header and the info header of a file.
[[nodiscard]] std::expected<BitmapHeader, Failure> readBitmapFileHeader(ByteSource& source);

/// Reads the color table, as far as a palette can hold it. Refuses a bitmap without one with bitmapUnsupported, and a
/// truncated table with pictureDamaged.
[[nodiscard]] std::expected<Palette, Failure> readColorTable(ByteSource& source, const BitmapHeader& header);

}  // namespace quillhue
