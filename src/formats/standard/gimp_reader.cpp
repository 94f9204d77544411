#include "formats/standard/color_text.h"
#include "formats/standard/standard_formats.h"
#include "formats/text_lines.h"

// Layout: "GPL" of GIMP's developer documentation (devel-docs): the line GIMP Palette, lines such as "Name: x" and
// "Columns: 8", and one line an entry with red, green, blue and a name. "#" begins a comment.

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "GIMP"); }

bool isHeaderLine(std::string_view line) {
  const char first = line.front();
  return ((first >= 'A' && first <= 'Z') || (first >= 'a' && first <= 'z')) && line.find(':') != std::string_view::npos;
}

ReadResult read(const ReaderInput& input) {
  TextLines lines(input.source);
  if (!lines.next().value_or("").starts_with("GIMP Palette")) {
    return std::unexpected(Failure::gimpInvalid);
  }
  ListedEntries entries;
  while (const auto line = entries.isCut() ? std::nullopt : lines.next()) {
    const std::string_view text = trimmed(*line);
    if (text.empty() || text.starts_with('#') || isHeaderLine(text)) {
      continue;
    }
    const auto color = parseColorLine(text);
    if (!color) {
      return std::unexpected(Failure::gimpInvalid);
    }
    entries.add(*color);
  }
  return entries.result(Failure::gimpInvalid, palette_format::kGimp | palette_format::kMayHoldMore);
}

}  // namespace

constinit const PaletteReader kStandardGimpReader{"gimp", "GIMP palette", "signature GIMP", "*.gpl", matches, read};

}  // namespace quillhue
