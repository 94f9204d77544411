#pragma once

#include <cstdint>
#include <vector>

#include "formats/byte_source.h"

namespace quillhue {

/// The first two bytes of a Windows Clipboard file.
inline constexpr std::uint16_t kClipboardFileId = 0xC350;

/// One format in which a Windows Clipboard file holds what was copied.
struct ClipboardItem {
  /// The system's number: kBitmapItem, kPaletteItem and others.
  std::uint16_t format = 0;
  /// Where its data starts in the file.
  std::uint64_t data = 0;
};
inline constexpr std::uint16_t kBitmapItem = 8;
inline constexpr std::uint16_t kPaletteItem = 9;

/// The file's directory, in its order, as far as the file goes.
[[nodiscard]] std::vector<ClipboardItem> clipboardItems(ByteSource& source);

}  // namespace quillhue
