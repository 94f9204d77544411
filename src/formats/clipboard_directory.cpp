#include "formats/clipboard_directory.h"

#include <algorithm>

namespace quillhue {

std::vector<ClipboardItem> clipboardItems(ByteSource& source) {
  constexpr std::uint64_t kDirectory = 4;
  constexpr std::uint64_t kEntryLength = 89;
  std::vector<ClipboardItem> items;
  // Bytes past the end of the file read as zeros, which are no format, so the loop can stop there.
  const std::uint64_t end = std::min<std::uint64_t>(kDirectory + source.u16le(2) * kEntryLength, source.size());
  for (std::uint64_t entry = kDirectory; entry < end; entry += kEntryLength) {
    items.push_back({source.u16le(entry), source.u32le(entry + 6)});
  }
  return items;
}

}  // namespace quillhue
