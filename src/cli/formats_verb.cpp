#include <algorithm>
#include <iomanip>
#include <vector>

#include "cli/json.h"
#include "cli/list_verb.h"
#include "cli/output_format.h"
#include "cli/picture_input.h"
#include "cli/verbs.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(The first list has the formats that can be written, with their names for --format. A file of a format in the other lists
is recognised by its content, or by its name if the list says so.

    quillhue-cli formats

)";

JsonObject jsonOfReader(const PaletteReader& reader) {
  return JsonObject().add("name", reader.name).add("title", reader.title).add("recognisedBy", reader.recognisedBy);
}

void showJson(Console& console) {
  std::vector<JsonObject> written;
  for (const OutputFormat& format : outputFormats()) {
    const bool limited = format.maxSize != kAnySize;
    written.push_back(JsonObject()
                          .add("name", format.name)
                          .add("code", format.code)
                          .add("fileType", format.title)
                          .add("extension", format.extension)
                          .add("maxSize", limited ? jsonOf(format.maxSize) : Json()));
  }
  std::vector<JsonObject> read;
  for (const PaletteReader* reader : paletteReaders()) {
    read.push_back(jsonOfReader(*reader));
  }
  std::vector<JsonObject> pictures;
  for (const PaletteReader& reader : pictureReaders()) {
    pictures.push_back(jsonOfReader(reader));
  }
  writeJson(console, JsonObject().add("written", written).add("read", read).add("pictures", pictures));
}

void showText(Console& console) {
  const auto column = [&](int width, const auto& text) -> std::ostream& {
    return console.out << std::left << std::setw(width) << text;
  };
  console.out << "Written (name for --format, extension, most entries):\n";
  for (const OutputFormat& format : outputFormats()) {
    column(2, "");
    column(14, format.name);
    column(6, format.extension);
    column(10, format.maxSize == kAnySize ? "any" : std::to_string(format.maxSize)) << format.title << '\n';
  }
  const auto showReader = [&](const PaletteReader& reader) {
    column(2, "");
    column(14, reader.name);
    column(26, reader.title) << reader.recognisedBy << '\n';
  };
  console.out << "\nRead (in the order in which a file is tried):\n";
  for (const PaletteReader* reader : paletteReaders()) {
    showReader(*reader);
  }
  console.out << "\nPictures without a palette (for info, convert --colors and remap):\n";
  std::ranges::for_each(pictureReaders(), showReader);
}

}  // namespace

void addFormatsVerb(CommandLine& tool, Console& console, ExitStatus& /*status*/) {
  addListVerb(tool, console,
              {
                  .name = "formats",
                  .help = "List the formats that can be written and read",
                  .jsonHelp = "Write JSON",
                  .manual = kManual,
                  .showText = showText,
                  .showJson = showJson,
              });
}

}  // namespace quillhue::cli
