#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "cli/input.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/palette_text.h"
#include "cli/refusal.h"
#include "cli/verbs.h"
#include "core/color_space.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(Each line shows an entry, its color in A and in B, and how far they are apart: the Euclidean distance in RGB, from 0 to
442, and in Oklab, in which black and white have the distance 1. An entry that only one palette has differs too.

The exit status is 0 if the palettes are the same, 1 if they differ, and 2 if a file can't be read.

    quillhue-cli diff old.gpl new.gpl
    quillhue-cli diff sea.gpl new.gpl --json

)";

struct DiffOptions {
  std::array<std::string, 2> files;
  InputOptions input;
  bool json = false;
};

// An entry that is in only one palette, or has different colors in the two.
struct Difference {
  std::int32_t index;
  std::array<std::optional<PaletteEntry>, 2> colors;
};

// Euclidean distances of two colors.
struct Distance {
  double rgb;
  double oklab;
};

std::optional<Distance> distanceOf(const Difference& difference) {
  const auto& [a, b] = difference.colors;
  if (!a || !b) {
    return std::nullopt;
  }
  const Oklab from = oklabOf(*a);
  const Oklab to = oklabOf(*b);
  return Distance{std::hypot(a->red - b->red, a->green - b->green, a->blue - b->blue),
                  std::hypot(from.lightness - to.lightness, from.a - to.a, from.b - to.b)};
}

std::vector<Difference> differences(const Palette& a, const Palette& b) {
  const auto entryOf = [](const Palette& palette, std::int32_t index) {
    return index < palette.getSize() ? std::optional(palette.entry(index)) : std::nullopt;
  };
  std::vector<Difference> found;
  for (std::int32_t index = 0; index < std::max(a.getSize(), b.getSize()); ++index) {
    const Difference difference{index, {entryOf(a, index), entryOf(b, index)}};
    if (difference.colors[0] != difference.colors[1]) {
      found.push_back(difference);
    }
  }
  return found;
}

// Returns the number with this many decimals.
std::string rounded(double number, int decimals) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(decimals) << number;
  return text.str();
}

void show(const Difference& difference, Console& console) {
  console.out << std::setw(4) << difference.index;
  for (const auto& color : difference.colors) {
    console.out << "  " << (color ? hexOf(*color) : "none   ");
  }
  if (const auto distance = distanceOf(difference)) {
    console.out << "  RGB " << std::setw(5) << rounded(distance->rgb, 1) << "  Oklab " << rounded(distance->oklab, 3);
  }
  console.out << '\n';
}

void showJson(const Difference& difference, Console& console) {
  const auto colorJson = [](const std::optional<PaletteEntry>& color) { return color ? jsonOf(*color) : Json(); };
  const auto distance = distanceOf(difference);
  writeJson(console, JsonObject()
                         .add("index", difference.index)
                         .add("a", colorJson(difference.colors[0]))
                         .add("b", colorJson(difference.colors[1]))
                         .add("rgb", distance ? jsonOf(distance->rgb) : Json())
                         .add("oklab", distance ? jsonOf(distance->oklab) : Json()));
}

ExitStatus diff(const DiffOptions& options, Console& console) {
  if (options.files[0] == "-" && options.files[1] == "-") {
    refuseUsage("diff", "reads standard input only once");
  }
  std::vector<Palette> palettes;
  for (const std::string& file : options.files) {
    auto read = readFilePalette(file, options.input, console);
    if (!read) {
      refuseFile({file, read.error()}, options.json, console);
      return kTrouble;
    }
    palettes.push_back(std::move(read->palette));
  }
  const std::vector<Difference> found = differences(palettes[0], palettes[1]);
  for (const Difference& difference : found) {
    (options.json ? showJson : show)(difference, console);
  }
  return found.empty() ? kDone : kDifferent;
}

}  // namespace

void addDiffVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("diff", "Show the entries in which two palettes differ");
  const auto options = std::make_shared<DiffOptions>();
  verb.addArgument("A", options->files[0], "A palette or image file, or - for standard input");
  verb.addArgument("B", options->files[1], "The file to compare with");
  verb.addOption("--name FILE", options->input.name, "File name to assume for standard input");
  addStandardFlag(verb, options->input.standard);
  verb.addFlag("--json", options->json, "Write JSON, one object a line for each such entry");
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] { status = diff(*options, console); });
}

}  // namespace quillhue::cli
