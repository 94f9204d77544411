#include "support/round_trip.h"

#include <algorithm>

#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "support/palettes.h"

namespace quillhue {

namespace {

using namespace palette_format;

// What comes back of the entries that were written.
Colors expectedColors(const Palette& palette, PaletteFormat format, PaletteEntry blank) {
  Colors colors = colorsOf(palette);
  const auto fillTo = [&](std::size_t size, PaletteEntry color) {
    colors.resize(std::max(size, colors.size()), color);
  };
  switch (format) {
    case kCmp: {
      std::size_t size = 16;
      while (size < colors.size()) {
        size *= 2;
      }
      fillTo(size, blank);
      break;
    }
    case kColorTable:
      fillTo(colors.size() <= 16 ? 16 : 256, blank);
      fillTo(256, {});
      break;
    case kDrHalo:
      fillTo(256, blank);
      break;
    case kMsDraw: {
      Colors kept;
      if (std::ranges::find(colors, PaletteEntry{}) == colors.end() ||
          (colors.front() == PaletteEntry{} && std::ranges::count(colors, PaletteEntry{}) == 1)) {
        kept.push_back({});
      }
      const bool blackIsImplied = colors.front() == PaletteEntry{};
      for (std::size_t i = blackIsImplied ? 1 : 0; i < colors.size(); ++i) {
        if (std::ranges::find(kept, colors[i]) == kept.end()) {
          kept.push_back(colors[i]);
        }
      }
      return kept;
    }
    default:
      break;
  }
  return colors;
}

}  // namespace

std::string checkRoundTrip(const Palette& palette, const PaletteWriter& writer, PaletteEntry blank) {
  const auto content = composePaletteFile(palette, writer.format, blank);
  if (!content) {
    return palette.getSize() > writer.maxSize ? "" : "refused";
  }
  MemorySource source(*content);
  const auto readers = paletteReaders();
  const auto reader = std::ranges::find(readers, writer.name, [](const PaletteReader* row) { return row->name; });
  const std::wstring name = L"x." + std::wstring(writer.extension.begin(), writer.extension.end());
  // A color table has no signature, and its first colors may spell another format's.
  if (findPaletteReader({source, name}) != *reader && writer.format != kAdobeColorTable) {
    return "detected as another format";
  }
  const ReadResult result = (*reader)->read({source, name});
  if (!result) {
    const bool countIsZero = writer.format == kJasc && palette.getSize() == 256;
    return countIsZero ? "" : std::string(textOf(result.error()));
  }
  const auto& file = std::get<FilePalette>(*result);
  if (file.format % kMayHoldMore != writer.format) {
    return "read with another format code";
  }
  return colorsOf(file.palette) == expectedColors(palette, writer.format, blank) ? "" : "other entries";
}

}  // namespace quillhue
