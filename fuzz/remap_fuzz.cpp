// The input is a mode, limits, the size of a palette and the kind and width of an image, then the colors of palettes
// and then the image's pixels. The result has to be that of the literal rules.

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "fuzz_target.h"
#include "support/literal_remap.h"
#include "support/stopping_progress.h"

namespace {

using namespace quillhue;

// Bytes in order, and zeros behind the last one.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : bytes_(data, data + size) {}

  std::uint8_t next() { return place_ < bytes_.size() ? bytes_[place_++] : 0; }
  [[nodiscard]] std::size_t left() const { return bytes_.size() - place_; }

 private:
  std::vector<std::uint8_t> bytes_;
  std::size_t place_ = 0;
};

RemapOptions optionsFrom(Input& input) {
  RemapOptions options;
  const std::uint8_t flags = input.next();
  options.mode = (flags & 1) != 0 ? RemapMode::dither : (flags & 8) != 0 ? RemapMode::maintain : RemapMode::nearest;
  if ((flags & 2) != 0) {
    options.protectedEntry = input.next();
  }
  if ((flags & 4) != 0) {
    options.protectGrid = ProtectGrid{input.next(), input.next()};
  }
  return options;
}

void fill(Palette& palette, Input& input) {
  for (std::int32_t i = 0; i < palette.getSize(); ++i) {
    const std::uint8_t red = input.next();
    const std::uint8_t green = input.next();
    palette.setEntry(i, {red, green, input.next()});
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMostPixels = 4096;
  Input input(data, size);
  const RemapOptions options = optionsFrom(input);
  const int reports = 1 + input.next();
  Palette palette = createPalette(1 + input.next() + input.next());
  const bool isIndexed = input.next() % 4 == 0;
  const std::int32_t width = 1 + input.next() % 64;
  // Each pixel this often, so that few bytes make an image on which errors grow and lists are made.
  const std::size_t repeats = 1 + std::size_t{input.next()};
  fill(palette, input);
  std::optional<Palette> own;
  if (isIndexed) {
    own = createPalette(256);
    fill(*own, input);
  }
  const std::size_t pixels = std::clamp<std::size_t>(input.left() / 3 * repeats, 1, kMostPixels);
  WorkImage image(width, static_cast<std::int32_t>(pixels / static_cast<std::size_t>(width)) + 1, own);
  const std::size_t bytes = image.bytesPerPixel();
  for (std::size_t i = 0; i < image.pixels().size(); ++i) {
    const bool isRepeated = i >= bytes && i / bytes % repeats != 0;
    image.pixels()[i] = isRepeated ? image.pixels()[i - bytes] : input.next();
  }
  RemappedImage result;
  RemappedImage expected;
  StoppingProgress progress(reports);
  StoppingProgress expectedProgress(reports);
  const bool isDone = remapImage(image, palette, options, result, progress);
  require(isDone == literalRemap(image, palette, options, expected, expectedProgress), "the same end");
  require(std::ranges::equal(result.rows(), expected.rows()), "the same indexes");
  require(progress.reports() == expectedProgress.reports(), "the same reports");
  return 0;
}
