#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

#include "cli/arguments.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/output.h"
#include "cli/verbs.h"
#include "core/new_palette.h"
#include "core/system_palettes.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(The kind blank has entries of one color, greyscale has greys from black to white, rgb has all mixtures of the levels of
red, green and blue. The other kinds are palettes of old hardware and of Windows; halftone has the Windows colors at both
ends, a cube of 6 by 6 by 6 colors, and 20 greys.

    quillhue-cli new vga vga.act
    quillhue-cli new rgb cube.gpl --size 125 --levels 5,5,5

)";

struct NewOptions {
  std::string kind;
  std::string file;
  std::optional<std::int32_t> size;
  std::optional<RgbLevels> levels;
  bool windowsColors = false;
  PaletteEntry blank;
  OutputOptions output;
  bool standard = false;
  bool json = false;
};

// A kind of palette that depends on options.
struct Generator {
  std::string_view name;
  NewPaletteKind kind;
};
constexpr std::array<Generator, 3> kGenerators{
    {{"blank", NewPaletteKind::blank}, {"greyscale", NewPaletteKind::sizeOnly}, {"rgb", NewPaletteKind::rgb}}};

void refuseOption(bool given, const char* option, const char* kinds) {
  if (given) {
    refuseUsage(option, std::string("goes with ") + kinds);
  }
}

Palette generate(const Generator& generator, const NewOptions& options) {
  refuseOption(options.windowsColors && !asksWindowsColors(generator.kind), "--windows-colors", "blank or rgb");
  refuseOption(options.levels && !asksLevels(generator.kind), "--levels", "rgb");
  AppSettings settings;
  NewPaletteFields fields = newPaletteFields(settings);
  fields.size = options.size.value_or(fields.size);
  fields.windowsColors = options.windowsColors;
  fields.levels = options.levels.value_or(fields.levels);
  const auto accepted = acceptNewPalette(generator.kind, fields, settings);
  if (!accepted) {
    refuseUsage("--size", std::string(accepted.error()) + ' ' + minimumSizeText(generator.kind, fields));
  }
  return createNewPalette(generator.kind, *accepted, options.blank);
}

Palette createPaletteFor(const NewOptions& options) {
  const auto* const generator = std::ranges::find(kGenerators, options.kind, &Generator::name);
  if (generator != kGenerators.end()) {
    return generate(*generator, options);
  }
  refuseOption(options.size.has_value(), "--size", "blank, greyscale or rgb");
  refuseOption(options.windowsColors, "--windows-colors", "blank or rgb");
  refuseOption(options.levels.has_value(), "--levels", "rgb");
  FixedHalftone screen;
  const auto system = std::ranges::find(systemPalettes(), options.kind, &SystemPalette::name);
  return system->create(screen);
}

std::vector<std::string> kindNames() {
  std::vector<std::string> names = namesOf(kGenerators);
  std::ranges::copy(namesOf(systemPalettes()), std::back_inserter(names));
  return names;
}

ExitStatus makeNew(const NewOptions& options, Console& console) {
  refuseJsonOnStandardOutput(options.json, options.file);
  const FormatChoice choice(options.output, options.standard, options.file);
  const Palette palette = createPaletteFor(options);
  const OutputFormat& format = choice.formatFor({}, palette.getSize());
  const auto written =
      writePalette({options.file, options.file, format, options.blank, options.output}, palette, console);
  if (!written) {
    return refuseFile(written.error(), options.json, console);
  }
  if (options.json) {
    writeJson(console, paletteJson(options.file, format.name, format.code, palette));
  }
  return kDone;
}

RgbLevels parseLevels(const std::string& text) {
  RgbLevels levels{};
  const std::vector<std::string> parts = split(text, ',');
  for (std::size_t i = 0; i < levels.size(); ++i) {
    const auto level = i < parts.size() ? parseNumber(parts[i]) : std::nullopt;
    if (parts.size() != levels.size() || !level || *level < kMinRgbLevel || *level > kMaxRgbLevel) {
      refuseUsage("--levels", text + " is not three numbers of 1 to 256 like 6,7,6");
    }
    levels[i] = *level;
  }
  return levels;
}

}  // namespace

void addNewVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("new", "Make a new palette");
  const auto options = std::make_shared<NewOptions>();
  verb.addChoiceArgument("KIND", options->kind, kindNames(), "The kind of palette to make");
  verb.addOutputArgument(options->file, "The file to write, or - for standard output");
  addNumberOption(verb, "--size", options->size, {1, kMaxPaletteSize},
                  "Entries of blank, greyscale and rgb (default 256)");
  verb.addAction({"--levels", "R,G,B", "Levels of the channels of rgb (default 6,7,6)",
                  [options](const std::string& text) { options->levels = parseLevels(text); }});
  verb.addFlag("--windows-colors", options->windowsColors, "Include the 20 Windows colors in blank or rgb");
  addColorOption(verb, "--blank", options->blank, "Color of unused entries (default 0,0,0)");
  addOutputOptions(verb, options->output);
  addStandardFlag(verb, options->standard);
  verb.addFlag("--json", options->json, "Write JSON: the palette that was written");
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] { status = makeNew(*options, console); });
}

}  // namespace quillhue::cli
