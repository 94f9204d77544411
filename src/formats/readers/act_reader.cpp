#include <algorithm>

#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "ACT"); }

ReadResult read(const ReaderInput& input) {
  constexpr std::uint64_t kTableLength = 768;
  constexpr std::uint64_t kLengthWithCount = 772;
  if (input.source.size() < kTableLength) {
    return std::unexpected(Failure::actTooSmall);
  }
  std::int32_t count = 256;
  if (input.source.size() == kLengthWithCount) {
    count = std::clamp<std::int32_t>(input.source.u16be(kTableLength), 1, kMaxPaletteSize);
  }
  return FilePalette{readTriples(input.source, 0, count), palette_format::kAdobeColorTable};
}

}  // namespace

constinit const PaletteReader kActReader{"act", "Adobe Color Table", "name ends with ACT", "*.act", matches, read};

}  // namespace quillhue
