// The input is a blank color and then the entries of a palette, three bytes each. It is written in every format and
// read again.

#include <algorithm>
#include <string>
#include <vector>

#include "formats/exports/export_formats.h"
#include "formats/readers/palette_reader.h"
#include "formats/standard/standard_formats.h"
#include "formats/writers/palette_writers.h"
#include "fuzz_target.h"
#include "support/round_trip.h"

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
  }
  for (const ExportFormat* format : exportFormats()) {
    const std::string fault = checkRoundTrip(palette, *format);
    require(fault.empty(), (std::string(format->name) + ": " + fault).c_str());
  }
  for (const ExportFormat* format : standardWriters()) {
    const std::string fault = checkStandardRoundTrip(palette, *format);
    require(fault.empty(), (std::string(format->name) + ", standard: " + fault).c_str());
  }
  return 0;
}
