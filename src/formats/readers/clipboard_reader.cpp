#include <optional>

#include "formats/bitmap_layout.h"
#include "formats/clipboard_directory.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return input.source.u16le(0) == kClipboardFileId; }

// Returns the data offset of the first item that has this format and is `usable`.
template <typename Usable>
std::optional<std::uint64_t> findItem(ByteSource& source, std::uint16_t format, Usable usable) {
  for (const ClipboardItem& item : clipboardItems(source)) {
    if (item.format == format && usable(item.data)) {
      return item.data;
    }
  }
  return std::nullopt;
}

ReadResult read(const ReaderInput& input) {
  ByteSource& source = input.source;
  const auto entryCount = [&](std::uint64_t data) { return std::int32_t{source.u16le(data + 2)}; };
  const auto palette = findItem(source, kPaletteItem, [&](std::uint64_t data) {
    return entryCount(data) >= 1 && entryCount(data) <= kMaxPaletteSize;
  });
  if (palette) {
    return FilePalette{readQuads(source, *palette + 4, entryCount(*palette)),
                       palette_format::kWindowsClipboard | palette_format::kMayHoldMore};
  }
  const auto bitsPerPixel = [&](std::uint64_t data) { return source.u8(data + bitmap_layout::kBitCount); };
  const auto bitmap = findItem(source, kBitmapItem, [&](std::uint64_t data) { return bitsPerPixel(data) <= 10; });
  if (bitmap) {
    return FilePalette{blueFirst(readQuads(source, *bitmap + bitmap_layout::kInfoHeader, 1 << bitsPerPixel(*bitmap))),
                       palette_format::kNone};
  }
  return std::unexpected(Failure::clipboardNoPalette);
}

}  // namespace

constinit const PaletteReader kClipboardReader{"clp", "Windows Clipboard file", "signature 50 C3", "*.clp", matches,
                                               read};

}  // namespace quillhue
