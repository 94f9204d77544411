#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "remap/transparent_remap.h"
#include "support/literal_remap.h"
#include "support/stopping_progress.h"

namespace quillhue {
namespace {

// Returns one of few values, so that colors repeat.
std::uint8_t anyOf(std::minstd_rand& random) { return static_cast<std::uint8_t>(random() >> 8 & 0xC0); }

std::vector<PaletteEntry> colorsOf(std::int32_t size, std::minstd_rand& random) {
  std::vector<PaletteEntry> colors(static_cast<std::size_t>(size));
  std::ranges::generate(colors, [&] { return PaletteEntry{anyOf(random), anyOf(random), 64}; });
  return colors;
}

// About `transparency` in 8 pixels are transparent.
WorkImage imageOf(std::int32_t width, bool isIndexed, unsigned transparency, std::minstd_rand& random) {
  const auto isTransparent = [&] { return (random() >> 8) % 8 < transparency; };
  WorkImage image(width, 23, isIndexed ? std::optional(paletteOf(colorsOf(256, random))) : std::nullopt);
  std::ranges::generate(image.pixels(), [&] { return anyOf(random); });
  for (std::size_t index = 0; isIndexed && index < 256; ++index) {
    image.transparentIndexes().set(index, isTransparent());
  }
  if (!isIndexed) {
    image.addTransparency();
  }
  for (std::int32_t y = 0; !isIndexed && y < image.height(); ++y) {
    std::ranges::generate(image.transparentRow(y), [&] { return static_cast<std::uint8_t>(isTransparent()); });
  }
  return image;
}

const std::array<std::pair<RemapMode, DitherOptions>, 4> kMethods{{{RemapMode::nearest, {}},
                                                                   {RemapMode::dither, {}},
                                                                   {RemapMode::dither, {nullptr, true}},
                                                                   {RemapMode::ordered, {}}}};

// The reference uses the palette without the transparent entry, and then raises the indexes from that entry on by one.
TEST(TransparentRemap, EqualsTheLiteralRules) {
  std::minstd_rand random(3);
  for (const std::int32_t size : {2, 3, 20, 60, 256}) {
    for (const std::int32_t entry : {0, 1, size - 1}) {
      for (const auto& [width, transparency] : {std::pair{1, 4U}, {2, 8U}, {3, 0U}, {19, 3U}, {40, 7U}}) {
        for (const bool isIndexed : {false, true}) {
          const WorkImage image = imageOf(width, isIndexed, transparency, random);
          std::vector<PaletteEntry> colors = colorsOf(size, random);
          TransparentRemapper remapper(paletteOf(colors), entry);
          colors.erase(colors.begin() + entry);
          for (const auto& [mode, details] : kMethods) {
            const std::optional<std::int32_t> shielded = size > 2 ? std::optional(2) : std::nullopt;
            const std::optional<std::int32_t> shifted = size > 2 && entry < 2 ? std::optional(1) : shielded;
            const RemapOptions options{mode, shielded, {}, false, details};
            const RemapOptions literal{mode, shielded == entry ? std::nullopt : shifted, {}, true, details};
            RemappedImage result;
            RemappedImage expected;
            StoppingProgress progress;
            EXPECT_TRUE(remapper.remap(image, options, result, progress));
            EXPECT_EQ(result.colors().size(), static_cast<std::size_t>(size));
            (void)literalRemap(image, paletteOf(colors), literal, expected, progress);
            for (std::int32_t y = 0; y < image.height(); ++y) {
              for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
                const int index = expected.row(y)[x];
                ASSERT_EQ(result.row(y)[x], image.isTransparent(y, x) ? entry : index + (index >= entry ? 1 : 0))
                    << size << " entries without " << entry << ", " << width << " columns, at " << x << ", " << y;
              }
            }
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace quillhue
