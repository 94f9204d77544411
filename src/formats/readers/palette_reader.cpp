#include "formats/readers/palette_reader.h"

#include <algorithm>
#include <utility>

namespace quillhue {

namespace {

constexpr std::size_t kTriple = 3;
constexpr std::size_t kQuad = 4;

Palette paletteFromRecords(std::span<const std::uint8_t> bytes, std::int32_t count, std::size_t recordSize) {
  Palette palette = createPalette(count);
  for (std::int32_t i = 0; i < count; ++i) {
    const auto record = bytes.subspan(static_cast<std::size_t>(i) * recordSize, kTriple);
    palette.setEntry(i, {record[0], record[1], record[2]});
  }
  return palette;
}

}  // namespace

void ListedEntries::add(PaletteEntry color) {
  isCut_ = colors_.size() == kMaxPaletteSize;
  if (!isCut_) {
    colors_.push_back(color);
  }
}

ReadResult ListedEntries::result(Failure ifNone, PaletteFormat format) const {
  if (colors_.empty()) {
    return std::unexpected(ifNone);
  }
  return FilePalette{paletteOf(colors_), format, isCut_};
}

bool nameEndsWith(std::wstring_view name, std::string_view word) {
  if (name.size() < word.size()) {
    return false;
  }
  const auto upperCase = [](wchar_t letter) {
    return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
  };
  return std::ranges::equal(
      name.substr(name.size() - word.size()), word,
      [](wchar_t letter, char wanted) { return letter == static_cast<wchar_t>(wanted); }, upperCase);
}

Palette paletteFromTriples(std::span<const std::uint8_t> bytes, std::int32_t count) {
  return paletteFromRecords(bytes, count, kTriple);
}

Palette paletteFromQuads(std::span<const std::uint8_t> bytes, std::int32_t count) {
  return paletteFromRecords(bytes, count, kQuad);
}

Palette readTriples(ByteSource& source, std::uint64_t offset, std::int32_t count) {
  return paletteFromTriples(source.bytes(offset, static_cast<std::size_t>(count) * kTriple), count);
}

Palette readQuads(ByteSource& source, std::uint64_t offset, std::int32_t count) {
  return paletteFromQuads(source.bytes(offset, static_cast<std::size_t>(count) * kQuad), count);
}

Palette blueFirst(Palette palette) {
  std::ranges::swap_ranges(palette.channel(Channel::red), palette.channel(Channel::blue));
  return palette;
}

}  // namespace quillhue
