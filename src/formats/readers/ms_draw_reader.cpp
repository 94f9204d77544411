#include <algorithm>
#include <utility>
#include <vector>

#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

constexpr std::uint64_t kFirstRecord = 54;
constexpr std::uint64_t kRecordSize = 4;

bool matches(const ReaderInput& input) { return input.source.u8(0) == 0x43 && input.source.u16le(2) == 0; }

ReadResult read(const ReaderInput& input) {
  const std::uint64_t size = input.source.size();
  if (size < kFirstRecord + kRecordSize) {
    return FilePalette{createPalette(1), palette_format::kMsDraw};
  }
  const auto records =
      static_cast<std::int32_t>(std::min<std::uint64_t>((size - kFirstRecord) / kRecordSize, kMaxPaletteSize));
  const Palette stored = readQuads(input.source, kFirstRecord, records);
  std::vector<PaletteEntry> kept;
  for (std::int32_t i = 0; i < records; ++i) {
    if (std::ranges::find(kept, stored.entry(i)) == kept.end()) {
      kept.push_back(stored.entry(i));
    }
  }
  if (std::ranges::find(kept, PaletteEntry{}) == kept.end()) {
    kept.insert(kept.begin(), PaletteEntry{});
  }
  kept.resize(std::min<std::size_t>(kept.size(), kMaxPaletteSize));
  return FilePalette{paletteOf(kept), palette_format::kMsDraw};
}

}  // namespace

constinit const PaletteReader kMsDrawReader{"ms-draw", "MS Draw palette", "bytes 43 ?? 00 00", "*.pal", matches, read};

}  // namespace quillhue
