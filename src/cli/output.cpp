#include "cli/output.h"

#include "cli/notes.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "formats/notes/written_note.h"

namespace quillhue::cli {

namespace {

Composition compositionFor(const PaletteOutput& output) {
  const SwatchLayout usual;
  const bool isPng = output.format.name == kPngFormat;
  if (!isPng && (output.options.columns || output.options.cell)) {
    refuseUsage(output.options.columns ? "--columns" : "--cell", "goes with --format png");
  }
  const std::string name = output.to == "-" ? "" : toUtf8(toFileName(toPath(fromUtf8(output.to)).stem()));
  return {
      output.blank, name, {output.options.columns.value_or(usual.columns), output.options.cell.value_or(usual.cell)}};
}

}  // namespace

void addForceFlag(Verb& verb, bool& force) { verb.addFlag("--force", force, "Replace files that exist"); }

std::expected<void, FileRefusal> writePalette(const PaletteOutput& output, const Palette& palette, Console& console) {
  const auto content = output.format.compose(palette, compositionFor(output));
  if (!content) {
    return std::unexpected(FileRefusal{output.from, std::string(textOf(content.error()))});
  }
  const auto written = writeOutput(output.to, *content, output.options.force, console);
  if (!written) {
    return std::unexpected(FileRefusal{output.to, written.error()});
  }
  if (const PaletteReader* const reader = output.format.reader) {
    if (const auto note = noteWriting(palette, *reader, *content)) {
      addNote(console, output.to,
              note->text + (note->isReadable ? "." : ". Use --standard to write a file that can be read."));
    }
  }
  return {};
}

void refuseJsonOnStandardOutput(bool json, const std::string& file) {
  if (json && file == "-") {
    refuseUsage("--json", "goes to standard output, so the palette can't go there too");
  }
}

std::expected<void, std::string> writeOutput(const std::string& file, const std::vector<std::uint8_t>& content,
                                             bool force, Console& console) {
  if (file == "-") {
    console.out.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    return {};
  }
  const std::wstring name = fromUtf8(file);
  if (!force && fileExists(name)) {
    return Refusal("This file already exists. Replace it with --force.");
  }
  if (!writeFile(name, content)) {
    return refusalOf(Failure::couldNotCreate);
  }
  return {};
}

}  // namespace quillhue::cli
