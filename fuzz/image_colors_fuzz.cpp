// The input is the size of a palette, width and depth of a bitmap of true colors, and then its pixels. Palettes are
// made of its colors.

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "formats/image_colors.h"
#include "fuzz_target.h"
#include "support/bitmaps.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quillhue;
  constexpr std::array<std::uint8_t, 3> kDepths{16, 24, 32};
  std::vector<std::uint8_t> input(data, data + size);
  input.resize(std::max<std::size_t>(size, 8));
  const std::int32_t entries = 1 + (input[0] | input[1] << 8) % kMaxPaletteSize;
  std::vector<ColorWord> words;
  for (std::size_t i = 4; i + 4 <= input.size(); i += 4) {
    words.push_back(input[i] | std::uint32_t{input[i + 1]} << 8 | std::uint32_t{input[i + 2]} << 16 |
                    std::uint32_t{input[i + 3]} << 24);
  }
  const auto width = 1 + static_cast<std::uint32_t>(input[2] % words.size());
  words.resize(words.size() / width * width);
  MemorySource source(bitmapOf(width, kDepths.at(input[3] % kDepths.size()), words));
  const ImageColors colors(TrueColorBitmap::open(source).value());
  require(colors.distinctCount() >= 1 && colors.distinctCount() <= words.size(), "no more colors than pixels");
  require(colors.exactPalette(entries, {}).getSize() == entries, "an exact palette of the size asked for");
  require(colors.reducedPalette(entries, {}).getSize() == entries, "a reduced palette of the size asked for");
  return 0;
}
