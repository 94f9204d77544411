#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

void compose(const Palette& palette, PaletteEntry /*blank*/, ByteSink& sink) {
  constexpr std::uint16_t kFileId = 0xC350;
  constexpr std::uint16_t kPaletteItem = 9;
  constexpr std::uint32_t kData = 93;
  const std::int32_t size = palette.getSize();
  sink.u16le(0, kFileId);
  sink.u16le(2, 1);
  sink.u16le(4, kPaletteItem);
  sink.u32le(6, static_cast<std::uint32_t>(size) * 4 + 8);
  sink.u32le(10, kData);
  // kept on purpose: the name starts two bytes after the start of its field.
  sink.text(16, "Pal&ette");
  sink.u16le(kData, 0x0300);
  sink.u16le(kData + 2, static_cast<std::uint16_t>(size));
  composeQuads(palette, {.offset = kData + 4, .count = size, .fourth = 1}, sink);
  sink.extend(sink.size() + 4);
}

}  // namespace

constinit const PaletteWriter kClipboardWriter{
    .format = palette_format::kWindowsClipboard,
    .name = "clp",
    .fileType = "Windows Clipboard File (*.clp)",
    .pattern = "*.clp",
    .extension = "clp",
    .appendsExtension = true,
    .ownsExtension = true,
    .maxSize = kAnySize,
    .compose = compose,
};

}  // namespace quillhue
