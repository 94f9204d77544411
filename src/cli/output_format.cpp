#include "cli/output_format.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <utility>

#include "cli/arguments.h"
#include "core/utf8.h"
#include "formats/exports/export_formats.h"
#include "formats/files.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "formats/writers/palette_writers.h"

namespace quillhue::cli {

namespace {

constexpr std::int32_t kMaxPngEntries = 256;

OutputFormat formatOf(const PaletteWriter& writer) {
  return {writer.name,
          writer.format,
          writer.fileType,
          writer.extension,
          writer.ownsExtension,
          writer.maxSize,
          [&writer](const Palette& palette, const Composition& composition) {
            return composePaletteFile(palette, writer.format, composition.blank);
          }};
}

Compose composeBy(const ExportFormat& format) {
  return [&format](const Palette& palette, const Composition& composition) -> Composed {
    ByteSink sink;
    format.compose(palette, composition.name, sink);
    return sink.take();
  };
}

OutputFormat formatOf(const ExportFormat& format) {
  return {format.name, palette_format::kNone, format.title, format.extension, format.ownsExtension,
          kAnySize,    composeBy(format)};
}

OutputFormat pngFormat() {
  return {kPngFormat,
          palette_format::kNone,
          "PNG image of the entries (*.png)",
          "png",
          true,
          kMaxPngEntries,
          [](const Palette& palette, const Composition& composition) -> Composed {
            if (palette.getSize() > kMaxPngEntries) {
              return std::unexpected(Failure::tooLargeForFormat);
            }
            return composeSwatches(palette, composition.swatches);
          }};
}

[[noreturn]] void refuseNoFormat() {
  refuseUsage("--format", "is needed because the output's extension does not determine the format: " +
                              listed(namesOf(outputFormats())));
}

// Returns the extension in lower case with its dot; empty for standard output and for names without one.
std::string extensionOf(const std::string& file) {
  const std::string name = toUtf8(toFileName(toPath(fromUtf8(file)).filename()));
  std::string extension = name.substr(std::min(name.rfind('.'), name.size()));
  std::ranges::transform(extension, extension.begin(), [](unsigned char letter) { return std::tolower(letter); });
  return extension;
}

const PaletteReader* readerNamed(std::string_view name, bool standard) {
  if (standard) {
    const auto found = std::ranges::find(standardReaders(), name, &PaletteReader::name);
    if (found != standardReaders().end()) {
      return *found;
    }
  }
  const auto found = std::ranges::find(paletteReaders(), name, &PaletteReader::name);
  return found == paletteReaders().end() ? nullptr : *found;
}

}  // namespace

std::vector<OutputFormat> outputFormats(bool standard) {
  std::vector<OutputFormat> formats;
  for (const PaletteWriter* writer : paletteWriters()) {
    formats.push_back(formatOf(*writer));
    const auto other = std::ranges::find(standardWriters(), writer->name, &ExportFormat::name);
    if (standard && other != standardWriters().end()) {
      formats.back().maxSize = kAnySize;
      formats.back().compose = composeBy(**other);
    }
  }
  for (const ExportFormat* format : exportFormats()) {
    formats.push_back(formatOf(*format));
  }
  formats.push_back(pngFormat());
  for (OutputFormat& format : formats) {
    format.reader = readerNamed(format.name, standard);
  }
  return formats;
}

void addOutputOptions(Verb& verb, OutputOptions& options) {
  verb.addChoice("--format", options.format, namesOf(outputFormats()),
                 "Format to write (default: by the extension of OUT)");
  addNumberOption(verb, "--columns", options.columns, {1, SwatchLayout::kMaxColumns},
                  "Squares in a row of a png (default 16)");
  addNumberOption(verb, "--cell", options.cell, {1, SwatchLayout::kMaxCell},
                  "Width of a square in pixels in a png (default 16)");
  verb.addFlag("--force", options.force, "Replace files that exist");
}

FormatChoice::FormatChoice(const OutputOptions& options, bool standard, const std::string& to, const std::string& from)
    : formats_(outputFormats(standard)) {
  const std::string extension = extensionOf(to);
  const auto isChosen = [&](const OutputFormat& format) {
    return options.format.empty() ? format.ownsExtension && '.' + std::string(format.extension) == extension
                                  : format.name == options.format;
  };
  const auto chosen = std::ranges::find_if(formats_, isChosen);
  if (chosen != formats_.end()) {
    chosen_ = static_cast<std::size_t>(chosen - formats_.begin());
  }
  keepsFormat_ = options.format.empty() && !extension.empty() && extension == extensionOf(from);
  if (!chosen_ && !keepsFormat_) {
    refuseNoFormat();
  }
}

const OutputFormat& FormatChoice::formatFor(std::string_view readAs, std::int32_t size) const {
  const auto own = std::ranges::find(formats_, readAs, &OutputFormat::name);
  if (keepsFormat_ && own != formats_.end() && size <= own->maxSize) {
    return *own;
  }
  if (!chosen_) {
    refuseNoFormat();
  }
  return formats_[*chosen_];
}

}  // namespace quillhue::cli
