#include <cctype>
#include <optional>
#include <string>

#include "formats/hex_color.h"
#include "formats/readers/palette_readers.h"
#include "formats/text_lines.h"

// Layout: Paint.NET's documentation, "Working with palettes": one color a line, alpha first.

namespace quillhue {

namespace {

// True when the file begins with "; paint.net" in any case, with or without the space.
bool hasTitle(ByteSource& source) {
  std::string start;
  for (std::uint64_t offset = TextLines(source).offset(); start.size() < 11; ++offset) {
    start += static_cast<char>(std::tolower(source.u8(offset)));
  }
  return start == "; paint.net" || start.starts_with(";paint.net");
}

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, ".TXT") && hasTitle(input.source); }

// Parses six digits, or eight digits whose first two are the alpha.
std::optional<PaletteEntry> parseColor(std::string_view digits) {
  constexpr std::size_t kAlphaDigits = 2;
  if (digits.size() == 6 + kAlphaDigits && parseHexColor(digits.substr(0, 6))) {
    digits.remove_prefix(kAlphaDigits);
  }
  return parseHexColor(digits);
}

ReadResult read(const ReaderInput& input) {
  TextLines lines(input.source);
  ListedEntries entries;
  while (const auto line = entries.isCut() ? std::nullopt : lines.next()) {
    const std::string_view text = trimmed(*line);
    if (text.empty() || text.starts_with(';')) {
      continue;
    }
    const auto color = parseColor(text);
    if (!color) {
      return std::unexpected(Failure::paintNetInvalid);
    }
    entries.add(*color);
  }
  return entries.result(Failure::paintNetInvalid);
}

}  // namespace

constinit const PaletteReader kPaintNetReader{
    "paint-net", "Paint.NET palette", "name ends with .TXT, first line ; paint.net", "*.txt", matches, read};

}  // namespace quillhue
