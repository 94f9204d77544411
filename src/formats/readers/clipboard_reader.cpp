#include <algorithm>
#include <optional>

#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

constexpr std::uint16_t kFileId = 0xC350;
// The directory: a format id and the offset of the data in each of its entries.
constexpr std::uint64_t kDirectory = 4;
constexpr std::uint64_t kDirectoryEntry = 89;
// The system's numbers for the clipboard's formats: device-independent bitmap and palette.
constexpr std::uint16_t kBitmapItem = 8;
constexpr std::uint16_t kPaletteItem = 9;

bool matches(const ReaderInput& input) { return input.source.u16le(0) == kFileId; }

// The data offset of the first item of this kind that is `usable`.
template <typename Usable>
std::optional<std::uint64_t> findItem(ByteSource& source, std::uint16_t kind, Usable usable) {
  // Behind the end of the file there is nothing but zeros, which are no kind.
  const std::uint64_t end = std::min<std::uint64_t>(kDirectory + source.u16le(2) * kDirectoryEntry, source.size());
  for (std::uint64_t entry = kDirectory; entry < end; entry += kDirectoryEntry) {
    if (source.u16le(entry) != kind) {
      continue;
    }
    const std::uint64_t data = source.u32le(entry + 6);
    if (usable(data)) {
      return data;
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
  const auto bitsPerPixel = [&](std::uint64_t data) { return source.u8(data + 14); };
  const auto bitmap = findItem(source, kBitmapItem, [&](std::uint64_t data) { return bitsPerPixel(data) <= 10; });
  if (bitmap) {
    return FilePalette{blueFirst(readQuads(source, *bitmap + 40, 1 << bitsPerPixel(*bitmap))), palette_format::kNone};
  }
  return std::unexpected(Failure::clipboardNoPalette);
}

}  // namespace

constinit const PaletteReader kClipboardReader{"clp", "Windows Clipboard file", "signature 50 C3", matches, read};

}  // namespace quillhue
