#include "formats/image_colors.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>

#include "formats/median_cut.h"

namespace quillhue {

namespace {

constexpr ColorWord kFourthByte = 0xFF000000;

// Returns the place of a color in the order: green in the highest byte, then blue, then red.
constexpr std::uint32_t orderOf(ColorWord word) {
  return (word & 0xFF00) << 8 | (word & 0xFF) << 8 | (word >> 16 & 0xFF);
}

constexpr ColorWord wordAt(std::uint32_t order) {
  return (order >> 8 & 0xFF) | (order >> 16 & 0xFF) << 8 | (order & 0xFF) << 16;
}

ColorWord wordOf(const WorkImage& image, std::int32_t y, std::size_t x) {
  const auto row = image.row(y);
  if (const auto& palette = image.palette()) {
    const PaletteEntry color = palette->entry(row[x]);
    return color.blue | static_cast<ColorWord>(color.green) << 8 | static_cast<ColorWord>(color.red) << 16;
  }
  return row[3 * x] | static_cast<ColorWord>(row[3 * x + 1]) << 8 | static_cast<ColorWord>(row[3 * x + 2]) << 16;
}

// Replaces `words` by the pixels of a row that are not transparent.
void readWords(const WorkImage& image, std::int32_t y, std::vector<ColorWord>& words) {
  words.clear();
  for (std::size_t x = 0; x < static_cast<std::size_t>(image.width()); ++x) {
    if (!image.isTransparent(y, x)) {
      words.push_back(wordOf(image, y, x));
    }
  }
}

}  // namespace

ImageColors::ImageColors(const TrueColorBitmap& bitmap)
    : ImageColors([bitmap](const VisitWords& visit) { bitmap.forEachBlock(visit); }) {}

ImageColors::ImageColors(const WorkImage& image)
    : ImageColors([&image](const VisitWords& visit) {
        std::vector<ColorWord> words;
        for (std::int32_t y = 0; y < image.height(); ++y) {
          readWords(image, y, words);
          if (!words.empty()) {
            visit(words);
          }
        }
      }) {}

ImageColors::ImageColors(ForEachBlock forEachBlock) : forEachBlock_(std::move(forEachBlock)) {
  std::optional<ColorWord> first;
  ColorWord differing = 0;
  forEachBlock_([&](std::span<const ColorWord> words) {
    const ColorWord reference = first.value_or(words.front());
    first = reference;
    pixelCount_ += words.size();
    for (const ColorWord word : words) {
      occurring_.insert(orderOf(word));
      differing |= word ^ reference;
    }
  });
  fourthByte_ = first.value_or(0) & kFourthByte;
  fourthByteDiffers_ = (differing & kFourthByte) != 0;
  if (fourthByteDiffers_) {
    auto pixels = sortedPixels();
    distinctCount_ = static_cast<std::uint64_t>(std::unique(pixels.begin(), pixels.end()) - pixels.begin());
  } else {
    distinctCount_ = occurring_.size();
  }
}

std::vector<CountedColor> ImageColors::counts() const {
  const auto pixels = pixelsOfEachColor();
  std::vector<CountedColor> counts;
  counts.reserve(static_cast<std::size_t>(occurring_.size()));
  occurring_.forEach([&](std::uint32_t order) {
    counts.push_back({colorOf(wordAt(order)), pixels[counts.size()]});
    return true;
  });
  return counts;
}

Palette ImageColors::exactPalette(std::int32_t size, PaletteEntry blank) const {
  Palette palette = createPalette(size, blank);
  std::int32_t filled = 0;
  occurring_.forEach([&](std::uint32_t order) {
    palette.setEntry(filled++, colorOf(wordAt(order)));
    return filled < palette.getSize();
  });
  return palette;
}

Palette ImageColors::reducedPalette(std::int32_t size, PaletteEntry blank) const {
  const std::uint64_t share = pixelCount_ / static_cast<std::uint64_t>(size);
  // The first color may keep one pixel more than its share. Every color keeps at least one.
  std::uint64_t kept = share + 1;
  std::vector<ColorWord> thinned;
  thinned.reserve(static_cast<std::size_t>(pixelCount_));
  forEachColor([&](ColorWord color, std::uint64_t pixels) {
    thinned.insert(thinned.end(), static_cast<std::size_t>(std::min(pixels, kept)), color);
    kept = std::max<std::uint64_t>(share, 1);
  });
  Palette palette = createPalette(size, blank);
  medianCut(thinned, size, palette);
  return palette;
}

void ImageColors::forEachColor(const VisitColor& visit) const {
  if (fourthByteDiffers_) {
    const auto pixels = sortedPixels();
    for (auto run = pixels.begin(); run != pixels.end();) {
      const auto next = std::upper_bound(run, pixels.end(), *run);
      visit(wordAt(*run >> 8) | *run << 24, static_cast<std::uint64_t>(next - run));
      run = next;
    }
    return;
  }
  const auto counts = pixelsOfEachColor();
  auto count = counts.begin();
  occurring_.forEach([&](std::uint32_t order) {
    visit(wordAt(order) | fourthByte_, *count++);
    return true;
  });
}

// Returns all pixels in ascending order: the color's place in the high three bytes, the fourth byte in the low one.
std::vector<std::uint32_t> ImageColors::sortedPixels() const {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(pixelCount_));
  forEachBlock_([&](std::span<const ColorWord> words) {
    std::ranges::transform(words, std::back_inserter(pixels),
                           [](ColorWord word) { return orderOf(word) << 8 | word >> 24; });
  });
  std::ranges::sort(pixels);
  return pixels;
}

// Returns how many pixels each occurring color has, in the order of the colors.
std::vector<std::uint32_t> ImageColors::pixelsOfEachColor() const {
  const ColorSet::Ranks ranks(occurring_);
  // One more than needed, in case the file gained a color after the first pass.
  std::vector<std::uint32_t> counts(static_cast<std::size_t>(distinctCount_) + 1);
  forEachBlock_([&](std::span<const ColorWord> words) {
    for (const ColorWord word : words) {
      ++counts[ranks.of(orderOf(word))];
    }
  });
  return counts;
}

}  // namespace quillhue
