#include "cli/output.h"

#include <algorithm>
#include <cctype>

#include "cli/arguments.h"
#include "core/utf8.h"
#include "formats/files.h"
#include "formats/readers/palette_reader.h"

namespace quillhue::cli {

void addFormatOption(Verb& verb, std::string& format) {
  verb.addChoice("--format", format, namesOf(paletteWriters()),
                 "The format to write (default: what OUT's extension stands for)");
}

void addForceFlag(Verb& verb, bool& force) { verb.addFlag("--force", force, "Replace files that exist"); }

const PaletteWriter& chooseWriter(const std::string& format, const std::string& file) {
  for (const PaletteWriter* writer : paletteWriters()) {
    std::string ending(".");
    ending += writer->extension;
    std::ranges::transform(ending, ending.begin(), [](unsigned char letter) { return std::toupper(letter); });
    if (format.empty() ? writer->ownsExtension && nameEndsWith(fromUtf8(file), ending) : writer->name == format) {
      return *writer;
    }
  }
  refuseUsage("--format", "is needed where the output's extension does not tell the format");
}

std::expected<void, FileRefusal> writePalette(const std::string& from, const Palette& palette, const std::string& to,
                                              const PaletteWriter& writer, PaletteEntry blank, bool force,
                                              Console& console) {
  const auto content = composePaletteFile(palette, writer.format, blank);
  if (!content) {
    return std::unexpected(FileRefusal{from, std::string(textOf(content.error()))});
  }
  const auto written = writeOutput(to, *content, force, console);
  if (!written) {
    return std::unexpected(FileRefusal{to, written.error()});
  }
  return {};
}

void refuseJsonOnStandardOutput(bool json, const std::string& file) {
  if (json && file == "-") {
    refuseUsage("--json", "goes to standard output, so the palette can't");
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
