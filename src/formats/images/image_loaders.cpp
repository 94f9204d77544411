#include "formats/images/image_loaders.h"

#include <algorithm>
#include <array>
#include <utility>

#include "formats/bitmap_layout.h"
#include "formats/images/dib.h"

namespace quillhue {

namespace {

constexpr std::array kLoaders{&kBitmapLoader, &kClipboardLoader, &kLbmLoader, &kPcxLoader};

// Screenshot programs put the masks between the header of 40 bytes and the pixels, or into a longer header at the same
// place.
DibLayout clipboardLayout(ByteSource& source) {
  using namespace bitmap_layout;
  constexpr std::uint32_t kBitFields = 3;
  const std::uint64_t header = source.u32le(kHeaderSize);
  const std::uint8_t depth = source.u8(kBitCount);
  if (source.u32le(kCompression) != kBitFields || (depth != 16 && depth != 32)) {
    return {.palette = kInfoHeader};
  }
  // Stored in the order red, green, blue.
  const BitMasks masks{source.u32le(kInfoHeader + 8), source.u32le(kInfoHeader + 4), source.u32le(kInfoHeader)};
  return {.palette = header <= kInfoHeader ? kInfoHeader + 12 : header, .masks = masks};
}

}  // namespace

std::span<const ImageLoader* const> imageLoaders() { return kLoaders; }

ImageResult loadImage(ByteSource& source) {
  return guardedLoad(source, [&]() -> ImageResult {
    const auto found =
        std::ranges::find_if(kLoaders, [&](const ImageLoader* loader) { return loader->matches(source); });
    if (found == kLoaders.end()) {
      return std::unexpected(Failure::unrecognisedType);
    }
    return (*found)->load(source);
  });
}

ImageResult loadClipboardImage(std::vector<std::uint8_t> block) {
  MemorySource source(std::move(block));
  return guardedLoad(source, [&] { return loadDib(source, clipboardLayout(source), Failure::clipboardDepth); });
}

}  // namespace quillhue
