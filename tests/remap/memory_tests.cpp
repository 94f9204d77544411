// Measures the memory of a run apart from image and result. Only AddressSanitizer's allocator counts memory.

#ifdef __SANITIZE_ADDRESS__

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>

#include "core/generators.h"
#include "remap/nearest_entry.h"
#include "support/stopping_progress.h"

// Declared here, because not every compiler has the header of the sanitizers.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // NOLINT

namespace quillhue {
namespace {

WorkImage noise(std::int32_t width, std::int32_t height) {
  WorkImage image(width, height, {});
  std::minstd_rand random(1);
  std::ranges::generate(image.pixels(), [&] { return static_cast<std::uint8_t>(random() >> 8); });
  return image;
}

// Colors near a curve. Few colors can be dithered onto them, so errors leave the color cube, and lists are also made
// outside it.
Palette sepia() {
  Palette palette = createGreyscalePalette(256);
  for (std::uint8_t& blue : palette.channel(Channel::blue)) {
    blue = static_cast<std::uint8_t>(blue * blue / 255);
  }
  return palette;
}

std::size_t heldAfter(const WorkImage& image, RemapMode mode) {
  RemappedImage result;
  StoppingProgress progress;
  result.prepare(image.width(), image.height(), entriesOf(sepia()));
  const std::size_t before = __sanitizer_get_current_allocated_bytes();
  Remapper remapper(sepia());
  remapper.remap(image, {mode, {}, {}}, result, progress);
  return __sanitizer_get_current_allocated_bytes() - before;
}

TEST(RemapMemory, StaysWithinItsLimits) {
  constexpr std::size_t kMebibyte = std::size_t{1} << 20;
  EXPECT_LE(heldAfter(noise(200, 300), RemapMode::nearest), kMebibyte);
  EXPECT_LE(heldAfter(noise(200, 300), RemapMode::dither), 2 * kMebibyte);
  EXPECT_LE(heldAfter(noise(1024, 1024), RemapMode::nearest), 18 * kMebibyte);
}

TEST(RemapMemory, HasALimitForLists) {
  NearestEntry nearest(entriesOf(createGreyscalePalette(256)), 4096);
  const std::size_t before = __sanitizer_get_current_allocated_bytes();
  std::minstd_rand random(1);
  for (int i = 0; i < 500000; ++i) {
    (void)nearest.find(colorsOfPixels(Lanes::all(static_cast<std::int32_t>(random() >> 4) & 0x7F7F7F)));
  }
  EXPECT_EQ(__sanitizer_get_current_allocated_bytes(), before);
}

}  // namespace
}  // namespace quillhue

#endif
