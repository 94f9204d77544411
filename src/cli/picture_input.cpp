#include "cli/picture_input.h"

#include <algorithm>
#include <array>
#include <new>
#include <vector>

#include "pictures/picture_decoder.h"

namespace quillhue::cli {

namespace {

// The same limit as for a stream.
constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 31;

std::vector<std::uint8_t> startOf(ByteSource& source) {
  return source.bytes(0, static_cast<std::size_t>(std::min<std::uint64_t>(source.size(), kSignatureSize)));
}

ImageResult load(const PictureKind& kind, ByteSource& source, PaletteEntry blank) try {
  if (source.size() > kMostBytes) {
    return std::unexpected(Failure::imageTooLarge);
  }
  const auto file = source.bytes(0, static_cast<std::size_t>(source.size()));
  return source.failed() ? std::unexpected(Failure::couldNotOpen) : kind.decode(file, blank);
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

template <const PictureKind& kind>
PaletteReader readerOf() {
  return {kind.name,
          kind.title,
          kind.recognisedBy,
          kind.patterns,
          [](const ReaderInput& input) { return kind.matches(startOf(input.source)); },
          [](const ReaderInput& input) -> ReadResult { return load(kind, input.source, {}); }};
}

}  // namespace

std::span<const PaletteReader> pictureReaders() {
  static const std::array kReaders{readerOf<kPngPicture>(), readerOf<kJpegPicture>(), readerOf<kPnmPicture>()};
  return kReaders;
}

const PaletteReader* findPictureReader(const ReaderInput& input) {
  const auto readers = pictureReaders();
  const auto found = std::ranges::find_if(readers, [&](const PaletteReader& reader) { return reader.matches(input); });
  return found == readers.end() ? nullptr : &*found;
}

ImageResult loadPicture(ByteSource& source, PaletteEntry blank) {
  const PictureKind* const kind = findPictureKind(startOf(source));
  return kind == nullptr ? std::unexpected(Failure::unrecognisedType) : load(*kind, source, blank);
}

}  // namespace quillhue::cli
