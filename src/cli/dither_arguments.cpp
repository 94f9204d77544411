#include "cli/dither_arguments.h"

#include <algorithm>
#include <vector>

#include "cli/arguments.h"

namespace quillhue::cli {

namespace {

ProtectGrid parseGrid(const std::string& text) {
  constexpr ValueRange kSide{1, ProtectGrid::kMaxSide};
  const std::vector<std::string> sides = split(text, 'x');
  const auto width = parseNumber(sides.front());
  const auto height = parseNumber(sides.back());
  if (sides.size() != 2 || !width || !height || !kSide.contains(*width) || !kSide.contains(*height)) {
    refuseUsage("--protect-grid", text + " is not a width and a height from 1 to 1000 like 16x16");
  }
  return {*width, *height};
}

void checkMode(const DitherArguments& arguments, RemapMode mode) {
  struct Row {
    const char* option;
    bool isGiven;
    bool isUseful;
    const char* modes;
  };
  const bool diffuses = mode == RemapMode::dither;
  const bool isOrdered = mode == RemapMode::ordered;
  const bool dithers = diffuses || isOrdered;
  for (const Row& row : {Row{"--kernel", !arguments.kernel.empty(), diffuses, "dither"},
                         Row{"--serpentine", arguments.serpentine, diffuses, "dither"},
                         Row{"--clamp", arguments.clamp, diffuses, "dither"},
                         Row{"--matrix", !arguments.matrix.empty(), isOrdered, "ordered"},
                         Row{"--strength", arguments.strength.has_value(), dithers, "dither or ordered"},
                         Row{"--protect-color", arguments.protectedEntry.has_value(), dithers, "dither or ordered"},
                         Row{"--protect-grid", arguments.protectGrid.has_value(), dithers, "dither or ordered"}}) {
    if (row.isGiven && !row.isUseful) {
      refuseUsage(row.option, std::string("goes with --mode ") + row.modes);
    }
  }
}

}  // namespace

void addDitherOptions(Verb& verb, DitherArguments& arguments) {
  verb.beginBriefGroup("Dithering");
  verb.addChoice("--kernel", arguments.kernel, namesOf(diffusionKernels()),
                 "How --mode dither spreads errors (default floyd-steinberg)");
  verb.addFlag("--serpentine", arguments.serpentine, "With --mode dither, run every second row from right to left");
  verb.addFlag("--clamp", arguments.clamp,
               "With --mode dither, clamp colors with their errors to 0 to 255, against ghosts beside strong colors");
  verb.addChoice("--matrix", arguments.matrix, {"2", "4", "8", "16"},
                 "Rows and columns of the matrix of --mode ordered (default 8)");
  addNumberOption(verb, "--strength", arguments.strength, {0, DitherOptions::kFullStrength},
                  "Percentage of the errors, or of the matrix's amplitude, that is used (default 100)");
  addNumberOption(verb, "--protect-color", arguments.protectedEntry, {0, kMaxUsedEntries - 1},
                  "An entry whose exact color dithering keeps");
  verb.addAction({"--protect-grid", "WxH", "Cells that dithering treats separately, as in 16x16",
                  [&arguments](const std::string& text) { arguments.protectGrid = parseGrid(text); }});
}

void applyDitherArguments(const DitherArguments& arguments, RemapOptions& options) {
  checkMode(arguments, options.mode);
  DitherOptions& dither = options.dither;
  const auto kernels = diffusionKernels();
  const auto kernel = std::ranges::find(kernels, arguments.kernel, &DiffusionKernel::name);
  dither.kernel = kernel == kernels.end() ? nullptr : &*kernel;
  dither.isSerpentine = arguments.serpentine;
  dither.clampsErrors = arguments.clamp;
  dither.strength = arguments.strength.value_or(dither.strength);
  dither.matrixSide = parseNumber(arguments.matrix).value_or(dither.matrixSide);
  options.protectedEntry = arguments.protectedEntry;
  options.protectGrid = arguments.protectGrid;
}

}  // namespace quillhue::cli
