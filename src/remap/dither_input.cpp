#include "remap/dither_input.h"

#include <algorithm>

namespace quillhue {

namespace {

constexpr std::uint32_t kNoPixel = 0xFFFFFFFF;

}  // namespace

MarkedPixels::MarkedPixels(const DitherInput& input)
    : input_(input),
      mark_(kNoPixel),
      markedIndex_(input.limits.protectedEntry.value_or(0)),
      pixels_(static_cast<std::size_t>(input.image.width())) {
  if (input.limits.protectedEntry) {
    mark_ = pixelOf(input.colors[markedIndex_]);
  }
  if (const auto& palette = input.image.palette()) {
    ownColors_.resize(256);
    std::ranges::transform(entriesOf(*palette), ownColors_.begin(), pixelOf);
  }
}

std::span<const std::uint32_t> MarkedPixels::row(std::int32_t y) {
  const auto row = input_.image.row(y);
  for (std::size_t x = 0; x < pixels_.size(); ++x) {
    pixels_[x] = ownColors_.empty() ? pixelOf({row[3 * x + 2], row[3 * x + 1], row[3 * x]}) : ownColors_[row[x]];
  }
  if (input_.limits.skipsTransparent && input_.image.hasTransparency()) {
    for (std::size_t x = 0; x < pixels_.size(); ++x) {
      pixels_[x] = input_.image.isTransparent(y, x) ? mark_ : pixels_[x];
    }
  }
  return pixels_;
}

}  // namespace quillhue
