#include "cli/output.h"

#include <algorithm>
#include <cerrno>

#include "cli/file_log.h"
#include "cli/file_reason.h"
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

// Whether there are control characters other than line ends and tabs.
bool isBinary(const std::vector<std::uint8_t>& content) {
  return std::ranges::any_of(content, [](std::uint8_t byte) {
    return byte == 0x7F || (byte < ' ' && byte != '\n' && byte != '\r' && byte != '\t');
  });
}

}  // namespace

void addForceFlag(Verb& verb, bool& force) { verb.addFlag("--force", force, "Replace files that exist"); }

void addOutput(const std::string& out, bool hasOutDir, std::vector<std::string>& files) {
  if (out.empty()) {
    return;
  }
  if (hasOutDir) {
    refuseUsage("--out", "does not go with --out-dir");
  }
  files.push_back(out);
}

std::expected<void, FileRefusal> writePalette(const PaletteOutput& output, const Palette& palette, Console& console) {
  const auto content = output.format.compose(palette, compositionFor(output));
  if (!content) {
    return std::unexpected(FileRefusal{output.from, std::string(textOf(content.error()))});
  }
  std::string noteText;
  if (const PaletteReader* const reader = output.format.reader) {
    if (const auto note = noteWriting(palette, *reader, *content)) {
      noteText = note->text + (note->isReadable ? "." : ". Use --standard to write a file that can be read.");
    }
  }
  WrittenFile logged(console,
                     {.file = output.to,
                      .format = std::string(output.format.name),
                      .bytes = content->size(),
                      .entries = palette.getSize()},
                     noteText);
  const auto written = writeOutput(output.to, *content, output.options.force, console);
  if (!written) {
    return std::unexpected(FileRefusal{output.to, written.error()});
  }
  logged.add();
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
    if (console.isTerminal && !force && isBinary(content)) {
      return Refusal("This is binary data, which a terminal can't show. Write it anyway with --force.");
    }
    console.out.write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    return {};
  }
  const std::wstring name = fromUtf8(file);
  if (!force && fileExists(name)) {
    return Refusal("This file already exists. Replace it with --force.");
  }
  errno = 0;
  if (!writeFile(name, content)) {
    return Refusal(creationFailure(file, content.size(), errno));
  }
  return {};
}

}  // namespace quillhue::cli
