#include <memory>
#include <new>
#include <string>
#include <variant>
#include <vector>

#include "cli/file_reason.h"
#include "cli/input.h"
#include "cli/jobs.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/palette_text.h"
#include "cli/verbs.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(A palette is shown with the index, hexadecimal value and red, green and blue of each entry. For an image without a
palette, the number of its different colors is shown.

On a terminal, entries are blocks of color, unless the environment variable NO_COLOR is set. A terminal without 24-bit
colors shows the nearest of its 256.

    quillhue-cli info sea.gpl
    quillhue-cli info sea.gpl --json
    quillhue-cli info art --recursive --skip-unknown

)";

struct InfoOptions {
  std::vector<std::string> files;
  InputOptions input;
  FileListOptions list;
  std::string color = "auto";
};

// Returns the console with the colors that --color asks for.
Console consoleFor(const std::string& color, const Console& console) {
  Console chosen = console;
  if (color != "auto") {
    chosen.colors = color == "always" ? console.possibleColors : TerminalColors::none;
  }
  return chosen;
}

void showFilePalette(const std::string& file, const Input& input, bool json, Console& console) {
  const auto& content = std::get<FilePalette>(input.content);
  const Palette& palette = content.palette;
  if (json) {
    writeJson(console, paletteJson(file, input.reader->name, content.format, palette));
    return;
  }
  console.out << printableName(file) << ": " << input.reader->title << ", " << palette.getSize()
              << (palette.getSize() == 1 ? " entry\n" : " entries\n");
  showPalette(palette, console);
}

void showImage(const std::string& file, const Input& input, std::uint64_t colors, bool json, Console& console) {
  if (json) {
    writeJson(console, JsonObject().add("file", file).add("format", input.reader->name).add("colors", colors));
    return;
  }
  console.out << printableName(file) << ": " << input.reader->title << " without a palette, " << colors
              << (colors == 1 ? " color\n" : " different colors\n");
}

std::expected<void, Failure> show(const std::string& file, const InfoOptions& options, Console& console) try {
  const auto input = openInput(file, options.input, console);
  if (!input) {
    return std::unexpected(input.error());
  }
  if (std::holds_alternative<FilePalette>(input->content)) {
    showFilePalette(file, *input, options.list.json, console);
    return {};
  }
  const ImageColors colors = colorsOf(input->content);
  if (input->source->failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  showImage(file, *input, colors.distinctCount(), options.list.json, console);
  return {};
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

ExitStatus showAll(const InfoOptions& options, Console& console) {
  const FileListOptions& list = options.list;
  return runJobs(listFiles(options.files, {}, list, console), list.jobs, console, [&]() -> Job {
    return [&](const ListedFile& file, Console& own) {
      const auto shown = show(file.name, options, own);
      return shown ? kDone
                   : refuseInput({file.name, openingFailure(shown.error(), file.name)}, list.skipsUnknown, list.json,
                                 own);
    };
  });
}

}  // namespace

void addInfoVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("info", "Show the palettes of files");
  const auto options = std::make_shared<InfoOptions>();
  verb.addArgument("FILE", options->files, "Palettes, images, folders, or - for standard input");
  verb.addOption("--name FILE", options->input.name, "File name to assume for standard input");
  addStandardFlag(verb, options->input.standard);
  addFileListOptions(verb, options->list);
  verb.addChoice("--color", options->color, {"auto", "always", "never"},
                 "Show blocks of color (default: auto, on a terminal)");
  verb.addFlag("--json", options->list.json, "Write JSON, one object a line for each file");
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] {
    Console chosen = consoleFor(options->color, console);
    status = showAll(*options, chosen);
  });
}

}  // namespace quillhue::cli
