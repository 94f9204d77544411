#include <algorithm>
#include <utility>
#include <vector>

#include "formats/number_lines.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

// The lines "JASC-PAL" and "0100" with two-byte line ends, then the count line with up to four digits.
constexpr std::size_t kHeadLength = 21;
// Three numbers of three digits and the separators between them.
constexpr std::size_t kLineLength = 14;

// Returns where the search for the entry count starts. With single line feeds the version line begins at index 9.
std::size_t countPosition(const ByteSource& source, const std::vector<std::uint8_t>& head) {
  if (source.size() < 10 || head[9] == '0') {
    return 13;
  }
  return static_cast<std::size_t>(std::find(head.begin() + 10, head.end(), '0') - head.begin()) + 4;
}

std::uint64_t nextDigit(ByteSource& source, std::uint64_t offset) {
  while (offset < source.size() && source.u8(offset) < '0') {
    ++offset;
  }
  return offset;
}

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "JASC"); }

ReadResult read(const ReaderInput& input) {
  const auto start = input.source.bytes(0, kHeadLength);
  NumberCursor head(start, countPosition(input.source, start));
  head.skipBelow('0');
  const auto count = static_cast<std::int32_t>(head.number(kMaxPaletteSize + 1));
  if (count < 1 || count > kMaxPaletteSize) {
    return std::unexpected(Failure::jascInvalid);
  }
  Palette palette = createPalette(count);
  std::uint64_t offset = nextDigit(input.source, head.position());
  for (std::int32_t i = 0; i < count; ++i) {
    const auto line = input.source.bytes(offset, kLineLength);
    NumberCursor numbers(line);
    PaletteEntry color;
    color.red = numbers.byte();
    numbers.skip(1);
    color.green = numbers.byte();
    numbers.skip(1);
    color.blue = numbers.byte();
    palette.setEntry(i, color);
    offset = nextDigit(input.source, offset + numbers.position());
  }
  return FilePalette{std::move(palette), palette_format::kJasc};
}

}  // namespace

constinit const PaletteReader kJascReader{"jasc", "JASC palette", "signature JASC", "*.pal", matches, read};

}  // namespace quillhue
