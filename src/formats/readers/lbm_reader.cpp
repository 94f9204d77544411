#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return matchTag(input.source, 0, "FORM"); }

ReadResult read(const ReaderInput& input) {
  const std::uint64_t tag = findTag(input.source, 4, "CMAP");
  const std::uint32_t count = tag < input.source.size() ? input.source.u32be(tag + 4) / 3 : 0;
  if (count < 1 || count > kMaxPaletteSize) {
    return std::unexpected(Failure::lbmPaletteTooLarge);
  }
  return FilePalette{readTriples(input.source, tag + 8, static_cast<std::int32_t>(count)), palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kLbmReader{"lbm", "LBM image", "signature FORM", "*.iff;*.lbm", matches, read};

}  // namespace quillhue
