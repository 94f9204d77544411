#include "formats/writers/palette_writers.h"

#include <algorithm>
#include <array>

namespace quillhue {

namespace {

constexpr std::array kWriters{
    &kActWriter,  &kCmpWriter, &kColorTableWriter, &kCsvWriter,  &kDrHaloWriter,    &kGimpWriter,
    &kJascWriter, &kMapWriter, &kMsDrawWriter,     &kRiffWriter, &kClipboardWriter,
};

constexpr std::int32_t kMostOfFixedFormats = 256;

Failure tooLarge(PaletteFormat format, std::int32_t size) {
  if (format != palette_format::kMsDraw) {
    return Failure::tooLargeForFormat;
  }
  return size > kMostOfFixedFormats ? Failure::farTooLargeForMsDraw : Failure::tooLargeForMsDraw;
}

}  // namespace

std::span<const PaletteWriter* const> paletteWriters() { return kWriters; }

const PaletteWriter* findPaletteWriter(PaletteFormat format) {
  const auto found = std::ranges::find(kWriters, format, &PaletteWriter::format);
  return found == kWriters.end() ? nullptr : *found;
}

std::expected<std::vector<std::uint8_t>, Failure> composePaletteFile(const Palette& palette, PaletteFormat format,
                                                                     PaletteEntry blank) {
  if ((format & palette_format::kMayHoldMore) != 0) {
    return std::unexpected(Failure::mightHoldMore);
  }
  const PaletteWriter* const writer = findPaletteWriter(format);
  if (palette.getSize() > (writer == nullptr ? kMostOfFixedFormats : writer->maxSize)) {
    return std::unexpected(tooLarge(format, palette.getSize()));
  }
  ByteSink sink;
  if (writer != nullptr) {
    writer->compose(palette, blank, sink);
  }
  return sink.take();
}

}  // namespace quillhue
