#include "pictures/picture_decoder.h"

#include <algorithm>
#include <array>

namespace quillhue {

namespace {

constexpr std::array kKinds{&kPngPicture, &kJpegPicture, &kPnmPicture};

}  // namespace

std::span<const PictureKind* const> pictureKinds() { return kKinds; }

const PictureKind* findPictureKind(PictureBytes start) {
  const auto found = std::ranges::find_if(kKinds, [&](const PictureKind* kind) { return kind->matches(start); });
  return found == kKinds.end() ? nullptr : *found;
}

}  // namespace quillhue
