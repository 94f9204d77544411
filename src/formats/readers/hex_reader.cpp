#include "formats/hex_color.h"
#include "formats/readers/palette_readers.h"
#include "formats/text_lines.h"

// One color a line, as web collections of palettes offer for download.

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, ".HEX"); }

ReadResult read(const ReaderInput& input) {
  TextLines lines(input.source);
  ListedEntries entries;
  while (auto line = entries.isCut() ? std::nullopt : lines.next()) {
    line->remove_prefix(line->starts_with('#') ? 1 : 0);
    const auto color = parseHexColor(*line);
    if (!color) {
      return std::unexpected(Failure::hexInvalid);
    }
    entries.add(*color);
  }
  return entries.result(Failure::hexInvalid);
}

}  // namespace

constinit const PaletteReader kHexReader{"hex", "Hex list", "name ends with .HEX", "*.hex", matches, read};

}  // namespace quillhue
