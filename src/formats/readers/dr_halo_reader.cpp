#include <utility>

#include "formats/dr_halo_layout.h"
#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return input.source.u32be(0) == 0x4148E300; }

ReadResult read(const ReaderInput& input) {
  Palette palette = createPalette(dr_halo::kEntries);
  for (std::int32_t i = 0; i < dr_halo::kEntries; ++i) {
    const std::uint64_t record = dr_halo::recordOffset(i);
    palette.setEntry(i, {input.source.u8(record), input.source.u8(record + 2), input.source.u8(record + 4)});
  }
  return FilePalette{std::move(palette), palette_format::kDrHalo};
}

}  // namespace

constinit const PaletteReader kDrHaloReader{"dr-halo", "Dr. Halo palette", "signature 41 48 E3 00", "*.pal", matches,
                                            read};

}  // namespace quillhue
