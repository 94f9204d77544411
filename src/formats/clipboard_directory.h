#pragma once

#include <cstdint>
#include <vector>

#include "formats/byte_source.h"

namespace quillhue {

/// The first two bytes of a Windows Clipboard file.
inline constexpr std::uint16_t kClipboardFileId = 0xC350;

/// The copied data in one clipboard format, as a Windows Clipboard file lists it.
struct ClipboardItem {
  /// The system's format number: kBitmapItem, kPaletteItem or another.
  std::uint16_t format = 0;
  /// Offset of the data in the file.
  std::uint64_t data = 0;
};
inline constexpr std::uint16_t kBitmapItem = 8;
inline constexpr std::uint16_t kPaletteItem = 9;

/// Returns the file's directory in its stored order. Entries past the end of the file are left out.
[[nodiscard]] std::vector<ClipboardItem> clipboardItems(ByteSource& source);

}  // namespace quillhue
