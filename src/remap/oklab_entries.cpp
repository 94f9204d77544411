#include "remap/oklab_entries.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace quillhue {

namespace {

double squaredDistance(const Oklab& a, const Oklab& b) {
  const auto square = [](double difference) { return difference * difference; };
  return square(a.lightness - b.lightness) + square(a.a - b.a) + square(a.b - b.b);
}

}  // namespace

OklabEntries::OklabEntries(std::span<const PaletteEntry> colors) : found_(std::size_t{1} << 24) {
  std::ranges::transform(colors, std::back_inserter(entries_), oklabOf);
}

Lanes OklabEntries::find(const EightColors& targets) {
  const std::array channels{numbersOf(targets.blue), numbersOf(targets.green), numbersOf(targets.red)};
  return lanesBy([&](std::size_t lane) {
    return nearest({clampToByte(channels[2][lane]), clampToByte(channels[1][lane]), clampToByte(channels[0][lane])});
  });
}

void OklabEntries::remapRow(std::span<const std::uint8_t> pixels, std::span<std::uint8_t> indexes) {
  for (std::size_t x = 0; x < indexes.size(); ++x) {
    indexes[x] = nearest({pixels[3 * x + 2], pixels[3 * x + 1], pixels[3 * x]});
  }
}

std::uint8_t OklabEntries::nearest(const PaletteEntry& color) {
  std::uint16_t& found = found_.all()[pixelOf(color)];
  if (found == 0) {
    const Oklab target = oklabOf(color);
    const auto entry =
        std::ranges::min_element(entries_, {}, [&](const Oklab& other) { return squaredDistance(target, other); });
    found = static_cast<std::uint16_t>(entry - entries_.begin() + 1);
  }
  return static_cast<std::uint8_t>(found - 1);
}

}  // namespace quillhue
