#include "formats/writers/palette_writer.h"

#include <string>

namespace quillhue {

void composeNumberLines(const Palette& palette, char separator, std::string_view lineEnd, ByteSink& sink) {
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    const PaletteEntry color = palette.entry(i);
    std::string line = std::to_string(color.red);
    line += separator + std::to_string(color.green);
    line += separator + std::to_string(color.blue);
    line += lineEnd;
    sink.text(sink.size(), line);
  }
}

void composeQuads(const Palette& palette, const QuadTable& table, ByteSink& sink) {
  std::size_t offset = table.offset;
  for (std::int32_t i = 0; i < table.count; ++i, offset += 4) {
    sink.rgb(offset, entryOr(palette, i, table.blank));
    sink.u8(offset + 3, table.fourth);
  }
}

void composeTriples(const Palette& palette, std::int32_t count, PaletteEntry blank, std::size_t offset,
                    ByteSink& sink) {
  for (std::int32_t i = 0; i < count; ++i, offset += 3) {
    sink.rgb(offset, entryOr(palette, i, blank));
  }
}

}  // namespace quillhue
