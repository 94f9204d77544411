#pragma once

#include <cstdint>

namespace quillhue {

/// Format of a palette's file: the position of its file type in the Save As dialog. kMayHoldMore is added if the file
/// may hold more than the palette. A plain Save does not overwrite such a file.
using PaletteFormat = std::uint32_t;

namespace palette_format {

inline constexpr PaletteFormat kNone = 0;
inline constexpr PaletteFormat kAdobeColorTable = 1;
inline constexpr PaletteFormat kCmp = 2;
inline constexpr PaletteFormat kColorTable = 3;
inline constexpr PaletteFormat kCsv = 4;
inline constexpr PaletteFormat kDrHalo = 5;
inline constexpr PaletteFormat kGimp = 6;
inline constexpr PaletteFormat kJasc = 7;
inline constexpr PaletteFormat kMap = 8;
inline constexpr PaletteFormat kMsDraw = 9;
inline constexpr PaletteFormat kRiff = 10;
inline constexpr PaletteFormat kWindowsClipboard = 11;

inline constexpr PaletteFormat kMayHoldMore = 16;

}  // namespace palette_format

}  // namespace quillhue
