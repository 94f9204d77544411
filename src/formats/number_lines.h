#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "core/palette.h"
#include "formats/byte_source.h"

namespace quillhue {

/// Reads decimal numbers from a text. Past the end of the text there are no digits.
class NumberCursor {
 public:
  explicit NumberCursor(std::span<const std::uint8_t> text, std::size_t at = 0) : text_(text), at_(at) {}

  [[nodiscard]] std::size_t position() const { return at_; }
  [[nodiscard]] bool atDigit() const { return at_ < text_.size() && text_[at_] >= '0' && text_[at_] <= '9'; }

  /// Reads the digits at the current place as a number no greater than `limit`; 0 when there are none.
  std::uint32_t number(std::uint32_t limit);
  /// Reads the digits at the current place as a number modulo 256; 0 when there are none.
  std::uint8_t byte();
  void skip(std::size_t count) { at_ += count; }
  /// Skips every byte below `bound`.
  void skipBelow(std::uint8_t bound);
  /// Skips blanks and tabs.
  void skipBlanks();
  /// Skips the separator between two numbers of a line: blanks and tabs, at most one other byte that is not a digit,
  /// and blanks and tabs again. Stops at the end of the line.
  void skipSeparator();

 private:
  std::span<const std::uint8_t> text_;
  std::size_t at_;
};

enum class HashLines : std::uint8_t { areEntries, areComments };

/// Entries that were read from lines.
struct NumberLines {
  Palette palette;
  /// There are more lines than kMaxPaletteSize.
  bool isCut = false;
};

/// Reads lines of three decimal numbers from `offset` to the end of the file, at most kMaxPaletteSize. Every line is an
/// entry, except comments when `hashLines` is areComments. Missing numbers are 0. Only the first 256 bytes of a line
/// are used. Without any line the palette is one black entry.
[[nodiscard]] NumberLines readNumberLines(ByteSource& source, std::uint64_t offset, HashLines hashLines);

}  // namespace quillhue
