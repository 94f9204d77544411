#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <system_error>
#include <variant>
#include <vector>

#include "cli/arguments.h"
#include "cli/input.h"
#include "cli/output.h"
#include "cli/verbs.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "formats/image_colors.h"

namespace quillhue::cli {

namespace {

struct ConvertOptions {
  std::vector<std::string> files;
  std::string name;
  std::optional<std::string> outDir;
  std::string format;
  std::string colors;
  // 0 where none is given.
  std::int32_t size = 0;
  PaletteEntry blank;
  bool force = false;
};

constexpr std::int32_t kReducedSize = 256;

std::expected<Palette, std::string> paletteOfImage(const std::string& file, const TrueColorBitmap& bitmap,
                                                   const ConvertOptions& options, Console& console) {
  if (options.colors.empty()) {
    return Refusal("The image has no palette. Make one of its colors with --colors exact or --colors reduce.");
  }
  const ImageColors colors(bitmap);
  if (options.colors == "reduce") {
    return colors.reducedPalette(options.size > 0 ? options.size : kReducedSize, options.blank);
  }
  const std::uint64_t count = colors.distinctCount();
  if (options.size == 0 && count > kMaxPaletteSize) {
    console.err << file << ": Of " << count << " different colors the first " << kMaxPaletteSize
                << " are taken. Choose --colors reduce for a palette of them all.\n";
  }
  const auto all = static_cast<std::int32_t>(std::min<std::uint64_t>(count, kMaxPaletteSize));
  return colors.exactPalette(options.size > 0 ? options.size : all, options.blank);
}

std::expected<Palette, std::string> readPaletteOf(const std::string& file, const ConvertOptions& options,
                                                  Console& console) try {
  auto input = openInput(file, options.name, console);
  if (!input) {
    return refusal(input.error());
  }
  const auto* const bitmap = std::get_if<TrueColorBitmap>(&input->content);
  if (bitmap == nullptr) {
    return std::move(std::get<FilePalette>(input->content).palette);
  }
  auto palette = paletteOfImage(file, *bitmap, options, console);
  if (input->source->failed()) {
    return refusal(Failure::couldNotOpen);
  }
  return palette;
} catch (const std::bad_alloc&) {
  return refusal(Failure::notEnoughMemory);
}

// Reports a refusal and answers false.
bool convertFile(const std::string& from, const std::string& to, const PaletteWriter& writer,
                 const ConvertOptions& options, Console& console) {
  const auto palette = readPaletteOf(from, options, console);
  if (!palette) {
    reportRefusal(console, from, palette.error());
    return false;
  }
  const auto written = writePalette(from, *palette, to, writer, options.blank, options.force, console);
  if (!written) {
    reportRefusal(console, written.error().file, written.error().text);
  }
  return written.has_value();
}

// Files that exist, found again under any name that leads to them. Only those whose own names are alike are compared on
// the disk, so that thousands of files cost no more than a look each.
class FileSet {
 public:
  void add(const std::string& file) { files_.emplace(keyOf(file), toPath(fromUtf8(file))); }

  [[nodiscard]] bool contains(const std::string& file) const {
    const auto [first, last] = files_.equal_range(keyOf(file));
    return std::any_of(first, last, [path = toPath(fromUtf8(file))](const auto& known) {
      std::error_code unknown;
      return std::filesystem::equivalent(path, known.second, unknown);
    });
  }

 private:
  // The file's own name behind all links, in lower case, since some systems take upper and lower case for the same.
  static std::string keyOf(const std::string& file) {
    std::error_code unknown;
    const auto path = std::filesystem::weakly_canonical(toPath(fromUtf8(file)), unknown);
    std::string name = toUtf8(toFileName(path.filename()));
    std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return name;
  }

  std::multimap<std::string, std::filesystem::path> files_;
};

ExitStatus convertIntoFolder(const std::string& outDir, const ConvertOptions& options, Console& console) {
  if (options.format.empty()) {
    throw CLI::ValidationError("--format", "is needed with --out-dir");
  }
  const PaletteWriter& writer = chooseWriter(options.format, {});
  const std::filesystem::path folder = toPath(fromUtf8(outDir));
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    reportRefusal(console, outDir, "Could not create the folder.");
    return kRefused;
  }
  const std::vector<std::string> inputs = expandFolders(options.files);
  FileSet read;
  std::ranges::for_each(inputs, [&](const std::string& file) { read.add(file); });
  FileSet written;
  ExitStatus status = kDone;
  for (const std::string& from : inputs) {
    FileSet own;
    own.add(from);
    std::filesystem::path target = folder / toPath(fromUtf8(from == "-" ? options.name : from)).stem();
    target += '.';
    target += writer.extension;
    const std::string to = toUtf8(toFileName(target));
    if (written.contains(to)) {
      reportRefusal(console, from, "Another file of this call is converted to " + to + " already.");
      status = kRefused;
    } else if (options.force && !own.contains(to) && read.contains(to)) {
      reportRefusal(console, from, "Its result would replace " + to + ", which this call is to convert.");
      status = kRefused;
    } else if (convertFile(from, to, writer, options, console)) {
      written.add(to);
    } else {
      status = kRefused;
    }
  }
  return status;
}

ExitStatus convert(const ConvertOptions& options, Console& console) {
  if (options.size > 0 && options.colors.empty()) {
    throw CLI::ValidationError("--size", "goes with --colors");
  }
  if (options.outDir) {
    // An unset variable of a script must not turn the last file into the output.
    if (options.outDir->empty()) {
      throw CLI::ValidationError("--out-dir", "names no folder");
    }
    if (std::ranges::find(options.files, "-") != options.files.end() && options.name.empty()) {
      throw CLI::ValidationError("--name", "is needed for standard input with --out-dir");
    }
    return convertIntoFolder(*options.outDir, options, console);
  }
  if (options.files.size() != 2) {
    throw CLI::ValidationError("convert", "takes IN and OUT, or any number of files with --out-dir");
  }
  const std::string& to = options.files[1];
  return convertFile(options.files[0], to, chooseWriter(options.format, to), options, console) ? kDone : kRefused;
}

}  // namespace

void addConvertVerb(CLI::App& tool, Console& console, ExitStatus& status) {
  CLI::App* const verb = tool.add_subcommand("convert", "Convert palettes from one format to another");
  const auto options = std::make_shared<ConvertOptions>();
  verb->add_option("FILE", options->files,
                   "IN and OUT; with --out-dir any number of files and folders of them. - is standard input or output")
      ->required();
  verb->add_option("--name", options->name, "The file name that standard input is taken to have");
  verb->add_option("--out-dir", options->outDir, "Convert all files into this folder");
  addFormatOption(*verb, options->format);
  verb->add_option("--colors", options->colors, "How an image without a palette becomes one: its colors, or fewer")
      ->check(CLI::IsMember({"exact", "reduce"}));
  verb->add_option("--size", options->size, "The number of entries for --colors (default: all colors, reduced 256)")
      ->check(CLI::Range(1, kMaxPaletteSize));
  addColorOption(*verb, "--blank", options->blank,
                 "The color of entries that a format has and the palette has not (default 0,0,0)");
  addForceFlag(*verb, options->force);
  verb->callback([options, &console, &status] { status = convert(*options, console); });
}

}  // namespace quillhue::cli
