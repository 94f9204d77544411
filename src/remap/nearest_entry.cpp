#include "remap/nearest_entry.h"

namespace quillhue {

namespace {

std::int32_t squaredDistance(const ColorVector& a, const ColorVector& b) {
  std::int32_t sum = 0;
  for (std::size_t channel = 0; channel < a.size(); ++channel) {
    const std::int32_t difference = wrappingSum(a[channel], -b[channel]);
    sum = wrappingSum(sum, wrappingProduct(difference, difference));
  }
  return sum;
}

}  // namespace

NearestEntry::NearestEntry(std::span<const PaletteEntry> colors) {
  colors_.reserve(colors.size());
  for (const PaletteEntry& color : colors) {
    colors_.push_back({color.blue, color.green, color.red});
  }
}

std::uint8_t NearestEntry::find(const ColorVector& target) const {
  std::size_t nearest = 0;
  std::int32_t least = 0;
  for (std::size_t index = 0; index < colors_.size(); ++index) {
    const std::int32_t distance = squaredDistance(target, colors_[index]);
    if (index == 0 || distance < least) {
      nearest = index;
      least = distance;
    }
  }
  return static_cast<std::uint8_t>(nearest);
}

}  // namespace quillhue
