#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "cli/arguments.h"
#include "cli/file_log.h"
#include "cli/file_reason.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/output.h"
#include "cli/output_folder.h"
#include "cli/verbs.h"
#include "remap/best_palette.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(The extension of OUT decides the format; .pal is a RIFF palette. If IN has the same extension, OUT gets the format of
IN. For other names, and with --out-dir, --format is needed. The verb formats lists all formats.

    quillhue-cli convert sea.gpl sea.act
    quillhue-cli convert sea.gpl sea.pal --format jasc
    quillhue-cli convert sea.gpl sea.png --columns 8 --cell 32
    quillhue-cli convert art --recursive --skip-unknown --out-dir new --format gimp --colors reduce
    cat sea.gpl | quillhue-cli convert - - --format hex

With --recursive, the folder of --out-dir gets the subfolders of the input. Without it, the subfolders that are skipped are
named.

An image without a palette needs --colors. With exact, its colors become entries in the order in which they appear, as
far as there is room. With reduce, median cut finds colors that represent all of them. With best, k-means finds those
whose mean squared error is least; the same image always gets the same palette, sorted from dark to bright.

    quillhue-cli convert photo.jpg photo.act --colors reduce --size 64
    quillhue-cli convert photo.jpg best.gpl --colors best --size 32

)";

struct ConvertOptions {
  std::vector<std::string> files;
  std::string out;
  InputOptions input;
  std::optional<std::string> outDir;
  OutputOptions output;
  std::string colors;
  std::optional<std::int32_t> size;
  PaletteEntry blank;
  FileListOptions list;
};

constexpr std::int32_t kReducedSize = 256;

std::expected<Palette, std::string> paletteOfImage(const std::string& file, const FileContent& image,
                                                   const ConvertOptions& options, Console& console) {
  if (options.colors.empty()) {
    return Refusal("The image has no palette. Make one from its colors with --colors exact, reduce or best.");
  }
  const ImageColors colors = colorsOf(image);
  if (options.colors == "reduce") {
    return colors.reducedPalette(options.size.value_or(kReducedSize), options.blank);
  }
  if (options.colors == "best") {
    return bestPalette(colors.counts(), options.size.value_or(kReducedSize), options.blank);
  }
  const std::uint64_t count = colors.distinctCount();
  const auto all = static_cast<std::int32_t>(std::min<std::uint64_t>(count, kMaxPaletteSize));
  const std::int32_t size = options.size.value_or(all);
  if (count > static_cast<std::uint64_t>(size)) {
    addNote(console, file,
            std::to_string(count - static_cast<std::uint64_t>(size)) + " of " + std::to_string(count) +
                " different colors are left out. Use --colors reduce or best to represent all of them.");
  }
  return colors.exactPalette(size, options.blank);
}

std::expected<InputPalette, std::string> readPaletteOf(const std::string& file, const ConvertOptions& options,
                                                       Console& console) try {
  auto input = openInput(file, options.input, console);
  if (!input) {
    return Refusal(openingFailure(input.error(), file));
  }
  if (auto* const stored = std::get_if<FilePalette>(&input->content)) {
    if (!options.colors.empty()) {
      addNote(console, file, "the file has a palette, so --colors is not used.");
    }
    return InputPalette{std::move(stored->palette), input->reader->name};
  }
  auto palette = paletteOfImage(file, input->content, options, console);
  if (!palette) {
    return Refusal(palette.error());
  }
  if (input->source->failed()) {
    return refusalOf(Failure::couldNotOpen);
  }
  return InputPalette{*std::move(palette), {}};
} catch (const std::bad_alloc&) {
  return refusalOf(Failure::notEnoughMemory);
}

// Reports a refusal and returns false.
bool convertFile(const std::string& from, const std::string& to, const FormatChoice& choice,
                 const ConvertOptions& options, Console& console) {
  const auto input = readPaletteOf(from, options, console);
  if (!input) {
    return refuseInput({from, input.error()}, options.list.skipsUnknown, options.list.json, console) == kDone;
  }
  const OutputFormat& format = choice.formatFor(input->format, input->palette.getSize());
  const auto written = writePalette({from, to, format, options.blank, options.output}, input->palette, console);
  if (!written) {
    return refuseFile(written.error(), options.list.json, console) == kDone;
  }
  if (options.list.json) {
    writeJson(console, filesJson(from, console));
  }
  return true;
}

ExitStatus convertAll(const std::string& outDir, const ConvertOptions& options, Console& console) {
  if (options.output.format.empty()) {
    refuseUsage("--format", "is needed with --out-dir: " + listed(namesOf(outputFormats())));
  }
  const FormatChoice choice(options.output, options.input.standard, {});
  const FolderOutput output{outDir, choice.formatFor({}, 0).extension, options.input.name, options.output.force,
                            options.list};
  return writeIntoFolder(output, options.files, console, [&]() -> WriteResult {
    return [&](const std::string& from, const std::string& to, Console& own) {
      return convertFile(from, to, choice, options, own);
    };
  });
}

ExitStatus convert(const ConvertOptions& options, Console& console) {
  if (options.size && options.colors.empty()) {
    refuseUsage("--size", "goes with --colors");
  }
  if (options.outDir) {
    return convertAll(*options.outDir, options, console);
  }
  requireOutDir(options.list);
  if (options.files.size() != 2) {
    refuseUsage("convert", "takes IN and OUT, or any number of files with --out-dir");
  }
  const std::string& from = options.files[0];
  const std::string& to = options.files[1];
  refuseJsonOnStandardOutput(options.list.json, to);
  const FormatChoice choice(options.output, options.input.standard, to, inputName(from, options.input));
  return convertFile(from, to, choice, options, console) ? kDone : kRefused;
}

}  // namespace

void addConvertVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("convert", "Convert palettes from one format to another");
  const auto options = std::make_shared<ConvertOptions>();
  verb.addArgument("FILE", options->files, "IN and OUT, or files and folders with --out-dir");
  verb.beginGroup("Input");
  verb.addOption("--name FILE", options->input.name, "File name to assume for standard input");
  addStandardFlag(verb, options->input.standard);
  verb.beginGroup("Output");
  verb.addOutputOption(options->out);
  verb.addOption("--out-dir DIR", options->outDir, "Convert all files into this folder");
  addOutputOptions(verb, options->output);
  addColorOption(verb, "--blank", options->blank, "Color of unused entries (default 0,0,0)");
  verb.addFlag("--json", options->list.json, "Write JSON, one object a line for each file: what was read and written");
  verb.beginBriefGroup("Many files");
  addFileListOptions(verb, options->list);
  verb.beginGroup("Images without a palette");
  verb.addChoice("--colors", options->colors, {"exact", "reduce", "best"},
                 "All colors, a median cut, or the palette of least error");
  addNumberOption(verb, "--size", options->size, {1, kMaxPaletteSize},
                  "Number of entries (default: all with exact, otherwise 256)");
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] {
    addOutput(options->out, options->outDir.has_value(), options->files);
    status = convert(*options, console);
  });
}

}  // namespace quillhue::cli
