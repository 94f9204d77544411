#pragma once

#include <cstdint>

/// Ids of the commands in menus, in accelerators and for scripts that send commands. 2 to 10 are the system palettes.
namespace quillhue::command_id {

inline constexpr std::int32_t kNewBlank = 1;
inline constexpr std::int32_t kFirstSystemPalette = 2;
inline constexpr std::int32_t kNewWindows = 9;
inline constexpr std::int32_t kLastSystemPalette = 10;
inline constexpr std::int32_t kNewGreyscale = 11;
inline constexpr std::int32_t kNewRgb = 12;
inline constexpr std::int32_t kOpen = 13;
inline constexpr std::int32_t kSave = 14;
inline constexpr std::int32_t kSaveAs = 15;
inline constexpr std::int32_t kExit = 16;

inline constexpr std::int32_t kUndo = 20;
inline constexpr std::int32_t kRedo = 21;
inline constexpr std::int32_t kCut = 22;
inline constexpr std::int32_t kCopy = 23;
inline constexpr std::int32_t kPaste = 24;
inline constexpr std::int32_t kClear = 25;
inline constexpr std::int32_t kResize = 26;
inline constexpr std::int32_t kCountColors = 27;
inline constexpr std::int32_t kAverageColor = 28;

inline constexpr std::int32_t kFreeSelection = 30;
inline constexpr std::int32_t kRowSelection = 31;
inline constexpr std::int32_t kRangeSelection = 32;
inline constexpr std::int32_t kSelectAll = 33;
inline constexpr std::int32_t kSelectNone = 34;
inline constexpr std::int32_t kInvertSelection = 35;
inline constexpr std::int32_t kSelectMatches = 36;
inline constexpr std::int32_t kSelectBrighter = 37;
inline constexpr std::int32_t kSelectDarker = 38;
inline constexpr std::int32_t kSelectRedundant = 39;

inline constexpr std::int32_t kGradient = 40;
inline constexpr std::int32_t kBrightGradient = 41;
inline constexpr std::int32_t kSwapRedGreen = 42;
inline constexpr std::int32_t kSwapGreenBlue = 43;
inline constexpr std::int32_t kSwapBlueRed = 44;
inline constexpr std::int32_t kReverse = 45;
inline constexpr std::int32_t kSortByIntensity = 46;
inline constexpr std::int32_t kSortByRed = 47;
inline constexpr std::int32_t kSortByGreen = 48;
inline constexpr std::int32_t kSortByBlue = 49;
inline constexpr std::int32_t kSortByDeviation = 50;

inline constexpr std::int32_t kReadMe = 60;
inline constexpr std::int32_t kAbout = 61;

inline constexpr std::int32_t kEditColor = 70;
inline constexpr std::int32_t kFill = 71;
inline constexpr std::int32_t kUseAsBlank = 72;

inline constexpr std::int32_t kNextTab = 80;
inline constexpr std::int32_t kPreviousTab = 81;

}  // namespace quillhue::command_id
