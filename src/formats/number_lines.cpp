#include "formats/number_lines.h"

#include <algorithm>
#include <array>

namespace quillhue {

namespace {

constexpr std::size_t kLineLimit = 256;

// Returns the start of the next line, or an offset past the end of the file.
std::uint64_t behindLineFeed(ByteSource& source, std::uint64_t offset) { return findTag(source, offset, "\n") + 1; }

std::uint64_t behindComments(ByteSource& source, std::uint64_t offset) {
  while (source.u8(offset) == '#') {
    std::uint64_t length = 1;
    while (length < kLineLimit && source.u8(offset + length) != '\n') {
      ++length;
    }
    // kept on purpose: a comment without a line feed in the searched part ends one byte after that part.
    offset += length + 1;
  }
  return offset;
}

PaletteEntry readEntry(ByteSource& source, std::uint64_t offset) {
  std::array<std::uint8_t, kLineLimit> line;
  source.read(offset, line);
  NumberCursor cursor(line);
  cursor.skipBlanks();
  PaletteEntry color;
  color.red = cursor.byte();
  cursor.skipSeparator();
  color.green = cursor.byte();
  cursor.skipSeparator();
  color.blue = cursor.byte();
  return color;
}

}  // namespace

std::uint32_t NumberCursor::number(std::uint32_t limit) {
  std::uint64_t value = 0;
  for (; atDigit(); ++at_) {
    value = std::min<std::uint64_t>(value * 10 + (text_[at_] - '0'), limit);
  }
  return static_cast<std::uint32_t>(value);
}

std::uint8_t NumberCursor::byte() {
  unsigned value = 0;
  for (; atDigit(); ++at_) {
    value = value * 10 + (text_[at_] - '0');
  }
  return static_cast<std::uint8_t>(value);
}

void NumberCursor::skipBelow(std::uint8_t bound) {
  while (at_ < text_.size() && text_[at_] < bound) {
    ++at_;
  }
}

void NumberCursor::skipBlanks() {
  while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t')) {
    ++at_;
  }
}

void NumberCursor::skipSeparator() {
  skipBlanks();
  if (at_ < text_.size() && text_[at_] != '\n' && !atDigit()) {
    ++at_;
  }
  skipBlanks();
}

NumberLines readNumberLines(ByteSource& source, std::uint64_t offset, HashLines hashLines) {
  Palette palette = createPalette(kMaxPaletteSize);
  std::int32_t count = 0;
  do {
    if (hashLines == HashLines::areComments) {
      const std::uint64_t entry = behindComments(source, offset);
      if (entry != offset && entry >= source.size()) {
        break;
      }
      offset = entry;
    }
    palette.setEntry(count++, readEntry(source, offset));
    offset = behindLineFeed(source, offset);
  } while (offset < source.size() && count < kMaxPaletteSize);
  const std::uint64_t rest = hashLines == HashLines::areComments ? behindComments(source, offset) : offset;
  return {resizedCopy(palette, count, {}), rest < source.size()};
}

}  // namespace quillhue
