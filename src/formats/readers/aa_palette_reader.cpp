#include "formats/readers/palette_readers.h"

namespace quillhue {

namespace {

constexpr std::uint64_t kHeaderLength = 8;

bool matches(const ReaderInput& input) {
  return input.source.size() > kHeaderLength && input.source.u32le(0) == input.source.size();
}

ReadResult read(const ReaderInput& input) {
  const std::uint64_t length = input.source.size() - kHeaderLength;
  if (length % 3 != 0) {
    return std::unexpected(Failure::aaProInvalid);
  }
  if (length / 3 > kMaxPaletteSize) {
    return std::unexpected(Failure::aaProTooLarge);
  }
  return FilePalette{readTriples(input.source, kHeaderLength, static_cast<std::int32_t>(length / 3)),
                     palette_format::kNone};
}

}  // namespace

constinit const PaletteReader kAaPaletteReader{"aa-palette", "AA Pro palette", "file size in bytes 0 to 3",
                                               "*.col",      matches,          read};

}  // namespace quillhue
