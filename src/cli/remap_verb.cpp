#include <algorithm>
#include <array>
#include <bitset>
#include <expected>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/arguments.h"
#include "cli/dither_arguments.h"
#include "cli/file_log.h"
#include "cli/image_format.h"
#include "cli/image_input.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/output.h"
#include "cli/output_folder.h"
#include "cli/progress_line.h"
#include "cli/verbs.h"
#include "remap/transparent_remap.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(An image is a bitmap, PNG, JPEG, PNM, PCX, LBM or clipboard file. The result is a bitmap (.bmp, .dib) or a PNG (.png).

--mode maintain keeps the indexes of an image, so that only their colors change. --mode nearest gives each pixel the
nearest color. --mode dither passes the error of each pixel on to its neighbors. --mode ordered adds a Bayer matrix before
it takes the nearest color; the amplitude is the mean distance between neighboring colors of the palette.

    quillhue-cli remap photo.jpg sea.gpl photo.png --mode dither
    quillhue-cli remap photo.jpg sea.gpl serpentine.png --mode dither --kernel atkinson --serpentine
    quillhue-cli remap photo.jpg sea.gpl ordered.png --mode ordered --matrix 4 --strength 80
    quillhue-cli remap photo.jpg sea.gpl oklab.png --match oklab

--match oklab takes the color that looks nearest, in Ottosson's space Oklab, instead of the one whose red, green and blue
are nearest. With --mode dither, errors are still those of red, green and blue.

Without --clamp, errors that no color of the palette can make up for grow, and appear as ghosts where one can. The kernel
floyd-steinberg without --serpentine, --strength, --clamp and --match oklab calculates in whole numbers, and is the fastest.

Without --transparent, transparent pixels are blended with the color of --blank, which also fills unused entries of a
bitmap.

)";

struct RemapVerbOptions {
  std::vector<std::string> files;
  std::string out;
  std::string palette;
  std::optional<std::string> outDir;
  InputOptions input;
  std::string format;
  RemapOptions remap;
  DitherArguments dither;
  std::string match;
  std::optional<std::int32_t> transparent;
  PaletteEntry blank;
  bool force = false;
  FileListOptions list;
};

struct ModeName {
  std::string_view name;
  RemapMode mode;
};
constexpr std::array<ModeName, 4> kModes{{{"maintain", RemapMode::maintain},
                                          {"nearest", RemapMode::nearest},
                                          {"dither", RemapMode::dither},
                                          {"ordered", RemapMode::ordered}}};

// Shows on a terminal how many rows are done, and never stops a run.
class RowProgress final : public RemapProgress {
 public:
  RowProgress(Console& console, std::int32_t rows) : line_(console, "rows", static_cast<std::size_t>(rows)) {}

 private:
  [[nodiscard]] bool rowsDone(std::int32_t rows, const RemappedImage& /*result*/) override {
    line_.update(static_cast<std::size_t>(rows));
    return true;
  }

  ProgressLine line_;
};

using RemapImage = std::function<void(const WorkImage& image, RemappedImage& result, Console& console)>;

// The palette, format and method for all images of a thread. The remapper serves one image at a time.
struct Target {
  const Palette& palette;
  const ImageFormat& format;
  RemapImage remap;
};

RemapImage remapperFor(const Palette& palette, const RemapVerbOptions& options) {
  const auto remapBy = [&options](auto remapper) {
    return [&options, remapper](const WorkImage& image, RemappedImage& result, Console& console) {
      RowProgress progress(console, image.height());
      remapper->remap(image, options.remap, result, progress);
    };
  };
  if (options.transparent) {
    return remapBy(std::make_shared<TransparentRemapper>(palette, *options.transparent));
  }
  return remapBy(std::make_shared<Remapper>(palette));
}

// Returns the transparent entries of the result. Maintained indexes keep their transparency.
std::bitset<256> transparentEntries(const WorkImage& image, const RemapVerbOptions& options) {
  if (options.remap.mode == RemapMode::maintain) {
    return image.transparentIndexes();
  }
  std::bitset<256> entries;
  if (options.transparent) {
    entries.set(static_cast<std::size_t>(*options.transparent));
  }
  return entries;
}

struct Remapped {
  RemappedImage image;
  std::bitset<256> transparent;
};

// The bytes of a result, and its description.
struct Composed {
  std::vector<std::uint8_t> content;
  FileRecord record;
};

// Frees the image before the result is composed, so that memory need not hold both.
std::expected<Remapped, std::string> remapFile(const std::string& file, const Target& target,
                                               const RemapVerbOptions& options, Console& console) {
  const auto image = readImage(file, options.input.standard, options.blank, console);
  if (!image) {
    return Refusal(image.error());
  }
  if (options.remap.mode == RemapMode::maintain && !image->palette()) {
    return Refusal("The image has no indexes to maintain. Use --mode nearest or --mode dither.");
  }
  Remapped remapped{{}, transparentEntries(*image, options)};
  target.remap(*image, remapped.image, console);
  return remapped;
}

std::expected<Composed, std::string> composeResult(const std::string& file, const Target& target,
                                                   const RemapVerbOptions& options, Console& console) try {
  const auto remapped = remapFile(file, target, options, console);
  if (!remapped) {
    return Refusal(remapped.error());
  }
  auto content = target.format.compose({remapped->image, target.palette, remapped->transparent, options.blank});
  if (!content) {
    return refusalOf(content.error());
  }
  const RemappedImage& image = remapped->image;
  return Composed{*std::move(content),
                  {.format = std::string(target.format.name),
                   .width = static_cast<std::uint64_t>(image.width()),
                   .height = static_cast<std::uint64_t>(image.height()),
                   .entries = static_cast<std::int32_t>(image.colors().size())}};
} catch (const std::bad_alloc&) {
  return refusalOf(Failure::notEnoughMemory);
}

// Reports a refusal and returns false.
bool remapTo(const std::string& from, const std::string& to, const Target& target, const RemapVerbOptions& options,
             Console& console) {
  auto composed = composeResult(from, target, options, console);
  if (!composed) {
    return refuseInput({from, composed.error()}, options.list.skipsUnknown, options.list.json, console) == kDone;
  }
  composed->record.file = to;
  composed->record.bytes = composed->content.size();
  WrittenFile logged(console, std::move(composed->record));
  const auto written = writeOutput(to, composed->content, options.force, console);
  if (!written) {
    return refuseFile({to, written.error()}, options.list.json, console) == kDone;
  }
  logged.add();
  if (options.list.json) {
    writeJson(console, filesJson(from, console));
  }
  return true;
}

void checkUsage(const RemapVerbOptions& options) {
  if (!options.match.empty() && options.remap.mode == RemapMode::maintain) {
    refuseUsage("--match", "goes with --mode nearest, dither or ordered");
  }
  if (options.transparent && options.remap.mode == RemapMode::maintain) {
    refuseUsage("--transparent",
                "goes with --mode nearest, dither or ordered; maintained indexes stay as transparent as they are");
  }
  if (options.transparent && options.transparent == options.remap.protectedEntry) {
    refuseUsage("--transparent", "names the entry of --protect-color, whose color is for opaque pixels");
  }
  if (!options.outDir) {
    requireOutDir(options.list);
  }
  if (options.outDir && options.palette.empty()) {
    refuseUsage("--palette", "is needed with --out-dir");
  }
  if (!options.outDir && (!options.palette.empty() || options.files.size() != 3)) {
    refuseUsage("remap", "takes IMAGE, PALETTE and OUT, or any number of images with --palette and --out-dir");
  }
}

std::expected<void, std::string> checkEntries(const Palette& palette, const RemapVerbOptions& options) {
  const std::int32_t size = std::min(palette.getSize(), kMaxUsedEntries);
  for (const auto& [option, entry] :
       {std::pair{"--protect-color: ", options.remap.protectedEntry}, {"--transparent: ", options.transparent}}) {
    const auto usable = entry ? checkEntry(*entry, size) : std::expected<void, std::string>();
    if (!usable) {
      return Refusal(option + usable.error());
    }
  }
  if (options.transparent && size == 1) {
    return Refusal("--transparent: The palette has no other entry for opaque pixels.");
  }
  return {};
}

ExitStatus remap(const RemapVerbOptions& options, Console& console) {
  checkUsage(options);
  const std::string& paletteFile = options.outDir ? options.palette : options.files[1];
  const ImageFormat& format = chooseImageFormat(options.format, options.outDir ? "" : options.files[2]);
  const auto read = readFilePalette(paletteFile, {{}, options.input.standard}, console);
  const auto usable = read ? checkEntries(read->palette, options) : Refusal(read.error());
  if (!usable) {
    return refuseFile({paletteFile, usable.error()}, options.list.json, console);
  }
  if (read->palette.getSize() > kMaxUsedEntries) {
    addNote(console, paletteFile,
            "only the first " + std::to_string(kMaxUsedEntries) + " of " + std::to_string(read->palette.getSize()) +
                " entries are used.");
  }
  if (!options.outDir) {
    refuseJsonOnStandardOutput(options.list.json, options.files[2]);
    const Target target{read->palette, format, remapperFor(read->palette, options)};
    return remapTo(options.files[0], options.files[2], target, options, console) ? kDone : kRefused;
  }
  return writeIntoFolder({*options.outDir, format.name, options.input.name, options.force, options.list}, options.files,
                         console, [&]() -> WriteResult {
                           const Target target{read->palette, format, remapperFor(read->palette, options)};
                           return [target, &options](const std::string& from, const std::string& to, Console& own) {
                             return remapTo(from, to, target, options, own);
                           };
                         });
}

RemapMode parseMode(const std::string& text) {
  const auto place = placeOf(namesOf(kModes), text);
  if (!place) {
    refuseUsage("--mode", refusedName(text, namesOf(kModes)));
  }
  return kModes[*place].mode;
}

}  // namespace

void addRemapVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("remap", "Give images a palette's colors; see help remap OPTION");
  const auto options = std::make_shared<RemapVerbOptions>();
  verb.addArgument("FILE", options->files, "IMAGE, PALETTE and OUT, or files with --out-dir");
  verb.beginGroup("Input");
  verb.addOption("--palette FILE", options->palette, "The file whose colors are used, with --out-dir");
  verb.addOption("--name FILE", options->input.name, "The name of standard input, with --out-dir");
  addStandardFlag(verb, options->input.standard);
  verb.beginGroup("Output");
  verb.addOutputOption(options->out);
  verb.addOption("--out-dir DIR", options->outDir, "Write all results into this folder");
  verb.addChoice("--format", options->format, imageFormatNames(), kImageFormatHelp);
  addForceFlag(verb, options->force);
  verb.addFlag("--json", options->list.json, "Write JSON, one object a line for each image");
  verb.beginBriefGroup("Many images");
  addFileListOptions(verb, options->list);
  verb.beginGroup("Colors");
  verb.addAction({"--mode", "NAME", "maintain, nearest (default), dither or ordered",
                  [options](const std::string& text) { options->remap.mode = parseMode(text); }, namesOf(kModes)});
  verb.addChoice("--match", options->match, {"rgb", "oklab"}, "The space of color distances (default rgb)");
  addNumberOption(verb, "--transparent", options->transparent, {0, kMaxUsedEntries - 1},
                  "The entry of pixels that are less than half opaque");
  addColorOption(verb, "--blank", options->blank, "Color behind transparent pixels (default 0,0,0)");
  addDitherOptions(verb, options->dither);
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] {
    addOutput(options->out, options->outDir.has_value(), options->files);
    applyDitherArguments(options->dither, options->remap);
    options->remap.match = options->match == "oklab" ? ColorMatch::oklab : ColorMatch::rgb;
    status = remap(*options, console);
  });
}

}  // namespace quillhue::cli
