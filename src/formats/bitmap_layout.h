#pragma once

#include <cstdint>

/// Where a Windows Bitmap has its fields: the structures BITMAPFILEHEADER and BITMAPINFOHEADER of the Windows API. All
/// values are little-endian.
namespace quillhue::bitmap_layout {

/// In the file header, which precedes the info header in files, but neither on the clipboard nor in clipboard files.
inline constexpr std::uint64_t kFileSize = 2;
inline constexpr std::uint64_t kPixelOffset = 10;
inline constexpr std::uint64_t kFileHeader = 14;

/// From the start of the info header.
inline constexpr std::uint64_t kHeaderSize = 0;
inline constexpr std::uint64_t kWidth = 4;
inline constexpr std::uint64_t kHeight = 8;
inline constexpr std::uint64_t kPlanes = 12;
inline constexpr std::uint64_t kBitCount = 14;
inline constexpr std::uint64_t kCompression = 16;
inline constexpr std::uint64_t kColorsUsed = 32;
/// Its usual length, behind which the color table follows.
inline constexpr std::uint64_t kInfoHeader = 40;

}  // namespace quillhue::bitmap_layout
