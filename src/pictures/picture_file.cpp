#include "pictures/picture_file.h"

#include <algorithm>
#include <new>

namespace quillhue {

// The same limit as for a stream.
constexpr std::uint64_t kMostBytes = std::uint64_t{1} << 31;

const PictureKind* findPictureKind(ByteSource& source) {
  return findPictureKind(
      source.bytes(0, static_cast<std::size_t>(std::min<std::uint64_t>(source.size(), kSignatureSize))));
}

PictureResult decodeFile(ByteSource& source, PaletteEntry blank, decltype(PictureKind::decode) decode) try {
  if (source.size() > kMostBytes) {
    return std::unexpected(Failure::imageTooLarge);
  }
  const auto file = source.bytes(0, static_cast<std::size_t>(source.size()));
  return source.failed() ? std::unexpected(Failure::couldNotOpen) : decode(file, blank);
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

PictureResult loadPicture(ByteSource& source, PaletteEntry blank) {
  const PictureKind* const kind = findPictureKind(source);
  return kind == nullptr ? std::unexpected(Failure::unrecognisedType) : decodeFile(source, blank, kind->decode);
}

}  // namespace quillhue
