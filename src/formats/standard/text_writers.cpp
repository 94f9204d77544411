#include <algorithm>
#include <string>

#include "formats/standard/standard_formats.h"
#include "formats/writers/palette_writer.h"

// The readers of these formats name their descriptions.

namespace quillhue {

namespace {

void composeJasc(const Palette& palette, std::string_view /*name*/, ByteSink& sink) {
  sink.text(0, "JASC-PAL\r\n0100\r\n" + std::to_string(palette.getSize()) + "\r\n");
  composeNumberLines(palette, ' ', "\r\n", sink);
}

void composeGimp(const Palette& palette, std::string_view name, ByteSink& sink) {
  std::string title(name.empty() ? "Untitled" : name);
  std::ranges::replace_if(title, [](unsigned char letter) { return letter < ' '; }, '?');
  sink.text(0, "GIMP Palette\nName: " + title + "\n#\n");
  composeNumberLines(palette, ' ', "\n", sink);
}

}  // namespace

constinit const ExportFormat kStandardJascWriter{
    .name = "jasc",
    .title = "JASC palette (*.pal)",
    .extension = "pal",
    .ownsExtension = false,
    .compose = composeJasc,
};
constinit const ExportFormat kStandardGimpWriter{
    .name = "gimp",
    .title = "GIMP palette (*.gpl)",
    .extension = "gpl",
    .ownsExtension = true,
    .compose = composeGimp,
};

}  // namespace quillhue
