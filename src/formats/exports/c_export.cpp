#include <cctype>
#include <string>

#include "formats/exports/export_formats.h"

namespace quillhue {

namespace {

// Returns a name like "palette_harbour". The prefix keeps it from starting with a digit or being a keyword.
std::string identifierFor(std::string_view name) {
  std::string identifier = name.empty() ? "palette" : "palette_";
  for (const char letter : name) {
    const auto code = static_cast<unsigned char>(letter);
    identifier += code < 0x80 && std::isalnum(code) != 0 ? letter : '_';
  }
  return identifier;
}

void compose(const Palette& palette, std::string_view name, ByteSink& sink) {
  const std::int32_t size = palette.getSize();
  sink.text(0, "/* " + std::to_string(size) + (size == 1 ? " entry" : " entries") +
                   ": red, green, blue. */\nconst unsigned char " + identifierFor(name) + '[' +
                   std::to_string(3 * size) + "] = {\n");
  for (const PaletteEntry& color : entriesOf(palette)) {
    sink.text(sink.size(), "    " + std::to_string(color.red) + ", " + std::to_string(color.green) + ", " +
                               std::to_string(color.blue) + ",\n");
  }
  sink.text(sink.size(), "};\n");
}

}  // namespace

constinit const ExportFormat kCExport{
    .name = "c",
    .title = "C array (*.c)",
    .extension = "c",
    .ownsExtension = true,
    .compose = compose,
};

}  // namespace quillhue
