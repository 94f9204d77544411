#pragma once

#include <cstdint>

/// Offsets of the fields of a Windows Bitmap: the structures BITMAPFILEHEADER and BITMAPINFOHEADER of the Windows API.
/// All values are little-endian.
namespace quillhue::bitmap_layout {

/// Offsets in the file header. It precedes the info header in bitmap files, but not on the clipboard or in clipboard
/// files.
inline constexpr std::uint64_t kFileSize = 2;
inline constexpr std::uint64_t kPixelOffset = 10;
inline constexpr std::uint64_t kFileHeader = 14;

/// Offsets from the start of the info header.
inline constexpr std::uint64_t kHeaderSize = 0;
inline constexpr std::uint64_t kWidth = 4;
inline constexpr std::uint64_t kHeight = 8;
inline constexpr std::uint64_t kPlanes = 12;
inline constexpr std::uint64_t kBitCount = 14;
inline constexpr std::uint64_t kCompression = 16;
inline constexpr std::uint64_t kColorsUsed = 32;
/// The usual length of the info header. The color table follows it.
inline constexpr std::uint64_t kInfoHeader = 40;

}  // namespace quillhue::bitmap_layout
