#include <cstdint>

#include "formats/standard/color_text.h"
#include "formats/standard/standard_formats.h"
#include "formats/text_lines.h"

// Layout: "JASC PAL" of the Just Solve the File Format Problem wiki: the lines JASC-PAL, 0100 and the number of
// entries, then one line an entry with red, green and blue; newer files also have alpha.

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "JASC"); }

// A count of 0 means all entries that follow, because some programs store 256 in a single byte.
std::optional<std::uint32_t> readCount(TextLines& lines) {
  const auto title = lines.next();
  if (!title || trimmed(*title) != "JASC-PAL" || !lines.next()) {
    return std::nullopt;
  }
  return parseDecimal<std::uint32_t>(trimmed(lines.next().value_or("")));
}

ReadResult read(const ReaderInput& input) {
  TextLines lines(input.source);
  const auto count = readCount(lines);
  if (!count) {
    return std::unexpected(Failure::jascInvalid);
  }
  ListedEntries entries;
  for (std::uint32_t i = 0; (*count == 0 || i < *count) && !entries.isCut();) {
    const auto line = lines.next();
    if (!line) {
      break;
    }
    if (trimmed(*line).empty()) {
      continue;
    }
    const auto color = parseColorLine(*line);
    if (!color) {
      return std::unexpected(Failure::jascInvalid);
    }
    entries.add(*color);
    ++i;
  }
  return entries.result(Failure::jascInvalid, palette_format::kJasc);
}

}  // namespace

constinit const PaletteReader kStandardJascReader{"jasc", "JASC palette", "signature JASC", "*.pal", matches, read};

}  // namespace quillhue
