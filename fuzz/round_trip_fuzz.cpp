// The input is a blank color and then the entries of a palette, three bytes each. It is written in every format and
// read again. Of some inputs the bytes are saved while a call fails.

#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "formats/exports/export_formats.h"
#include "formats/files.h"
#include "formats/notes/written_note.h"
#include "formats/readers/palette_readers.h"
#include "formats/standard/standard_formats.h"
#include "formats/writers/palette_writers.h"
#include "fuzz_target.h"
#include "support/faulty_files.h"
#include "support/round_trip.h"
#include "support/scratch_folder.h"

namespace {

// Saves over a file while one call may fail. The file then has its old or its new content.
void checkSaving(std::span<const std::uint8_t> content, quillhue::Fault fault, int at) {
  using namespace quillhue;
  const ScratchFolder folder;
  const std::wstring name = folder.file("x", {1, 2, 3});
  FaultyFiles files(fault, at);
  const bool saved = writeFile(name, content, files);
  const auto file = openFile(name);
  require(fileExists(name) && file, "the file exists");
  std::vector<std::uint8_t> stored(static_cast<std::size_t>((*file)->size()));
  (*file)->read(0, stored);
  require(saved ? std::ranges::equal(stored, content) : stored == std::vector<std::uint8_t>{1, 2, 3},
          "the old or the new content");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillhue;
  std::vector<std::uint8_t> bytes(data, data + size);
  bytes.resize(std::max<std::size_t>(size, 6));
  const PaletteEntry blank{bytes[0], bytes[1], bytes[2]};
  const auto entries = std::min<std::size_t>((bytes.size() - 3) / 3, kMaxPaletteSize);
  const Palette palette = paletteFromTriples(std::span(bytes).subspan(3), static_cast<std::int32_t>(entries));
  for (const PaletteWriter* writer : paletteWriters()) {
    const std::string fault = checkRoundTrip(palette, *writer, blank);
    require(fault.empty(), (std::string(writer->name) + ": " + fault).c_str());
    const auto content = composePaletteFile(palette, writer->format, blank);
    const auto reader = std::ranges::find(paletteReaders(), writer->name, &PaletteReader::name);
    const auto note = content ? noteWriting(palette, **reader, *content) : std::nullopt;
    require(!note || !note->text.empty(), "a text in every note");
  }
  for (const ExportFormat* format : exportFormats()) {
    const std::string fault = checkRoundTrip(palette, *format);
    require(fault.empty(), (std::string(format->name) + ": " + fault).c_str());
  }
  for (const ExportFormat* format : standardWriters()) {
    const std::string fault = checkStandardRoundTrip(palette, *format);
    require(fault.empty(), (std::string(format->name) + ", standard: " + fault).c_str());
  }
  // Saving takes milliseconds, so only some inputs do.
  if (size % 64 == 1) {
    checkSaving(bytes, static_cast<Fault>(blank.red % 3), blank.green % 8);
  }
  return 0;
}
