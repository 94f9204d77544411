#include "formats/images/image_loaders.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "formats/bitmap_layout.h"
#include "formats/images/dib.h"

namespace quillhue {

namespace {

constexpr std::array kLoaders{&kBitmapLoader, &kClipboardLoader, &kLbmLoader, &kPcxLoader};

// Loads with `load`, and tells the failures that can happen in any format.
template <typename Load>
ImageResult guarded(ByteSource& source, Load load) try {
  ImageResult image = load();
  if (source.failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  return image;
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

}  // namespace

std::span<const ImageLoader* const> imageLoaders() { return kLoaders; }

ImageResult loadImage(ByteSource& source) {
  return guarded(source, [&]() -> ImageResult {
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
  return guarded(source, [&] { return loadDib(source, {0, bitmap_layout::kInfoHeader}, Failure::clipboardDepth); });
}

}  // namespace quillhue
