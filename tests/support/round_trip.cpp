#include "support/round_trip.h"

#include <algorithm>
#include <bit>

#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "formats/writers/palette_writers.h"
#include "support/palettes.h"

namespace quillhue {

namespace {

using namespace palette_format;

// Returns every color once. A black first entry is implied. If no record is black, black is added in front.
Palette asMsDrawHasIt(const Palette& palette) {
  std::vector<PaletteEntry> kept;
  for (std::int32_t i = palette.entry(0) == PaletteEntry{} ? 1 : 0; i < palette.getSize(); ++i) {
    if (std::ranges::find(kept, palette.entry(i)) == kept.end()) {
      kept.push_back(palette.entry(i));
    }
  }
  if (std::ranges::find(kept, PaletteEntry{}) == kept.end()) {
    kept.insert(kept.begin(), PaletteEntry{});
  }
  return paletteOf(kept);
}

// Returns the palette that the reader must return.
Palette asTheFormatHasIt(const Palette& palette, PaletteFormat format, PaletteEntry blank) {
  const std::int32_t size = palette.getSize();
  switch (format) {
    case kCmp:
      return resizedCopy(palette, std::max(16, static_cast<std::int32_t>(std::bit_ceil(static_cast<unsigned>(size)))),
                         blank);
    case kColorTable:
      return resizedCopy(resizedCopy(palette, size <= 16 ? 16 : 256, blank), 256, {});
    case kDrHalo:
      return resizedCopy(palette, 256, blank);
    case kMsDraw:
      return asMsDrawHasIt(palette);
    default:
      return palette;
  }
}

}  // namespace

std::string checkRoundTrip(const Palette& palette, const PaletteWriter& writer, PaletteEntry blank) {
  const auto content = composePaletteFile(palette, writer.format, blank);
  if (!content) {
    return palette.getSize() > writer.maxSize ? "" : "refused";
  }
  MemorySource source(*content);
  const auto reader = std::ranges::find(paletteReaders(), writer.name, &PaletteReader::name);
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
  const bool same = show(file.palette) == show(asTheFormatHasIt(palette, writer.format, blank));
  return same && file.format % kMayHoldMore == writer.format ? "" : "read as something else";
}

std::string checkRoundTrip(const Palette& palette, const ExportFormat& format) {
  ByteSink sink;
  format.compose(palette, "x", sink);
  MemorySource source(sink.take());
  const std::wstring name = L"x." + std::wstring(format.extension.begin(), format.extension.end());
  const PaletteReader* const reader = findPaletteReader({source, name});
  if (reader == nullptr) {
    const bool hasNone =
        std::ranges::find(paletteReaders(), format.name, &PaletteReader::name) == paletteReaders().end();
    return hasNone ? "" : "not detected";
  }
  const ReadResult result = reader->read({source, name});
  return result && show(std::get<FilePalette>(*result).palette) == show(palette) ? "" : "read as something else";
}

std::string checkStandardRoundTrip(const Palette& palette, const ExportFormat& format) {
  ByteSink sink;
  format.compose(palette, "a\nb", sink);
  MemorySource source(sink.take());
  const ReaderInput input{source, L"x"};
  const PaletteReader* const reader = findStandardReader(input);
  if (reader == nullptr) {
    return "not detected";
  }
  const ReadResult result = reader->read(input);
  return result && show(std::get<FilePalette>(*result).palette) == show(palette) ? "" : "read as something else";
}

}  // namespace quillhue
