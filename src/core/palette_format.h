#pragma once

#include <cstdint>

namespace quillhue {

/// The format that a palette's file has and can be saved in: the position of its file type in the Save As dialog.
/// With kMayHoldMore added, the file may hold more than the palette and is not overwritten by a plain Save.
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
