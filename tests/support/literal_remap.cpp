#include "support/literal_remap.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <vector>

#include "support/literal_dithering.h"

namespace quillhue {

namespace {

// Blue, green and red, or errors of them. Sums and products wrap modulo 2^32.
using Color = std::array<std::int32_t, 3>;

std::int32_t sum(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

std::int32_t product(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

Color colorOf(const PaletteEntry& color) { return {color.blue, color.green, color.red}; }

std::vector<Color> colorsOf(std::span<const PaletteEntry> entries) {
  std::vector<Color> colors;
  std::ranges::transform(entries, std::back_inserter(colors), colorOf);
  return colors;
}

std::uint8_t nearestOf(const std::vector<Color>& colors, const Color& target) {
  std::size_t nearest = 0;
  std::int32_t least = 0;
  for (std::size_t index = 0; index < colors.size(); ++index) {
    std::int32_t distance = 0;
    for (std::size_t channel = 0; channel < target.size(); ++channel) {
      const std::int32_t difference = sum(target[channel], -colors[index][channel]);
      distance = sum(distance, product(difference, difference));
    }
    if (index == 0 || distance < least) {
      nearest = index;
      least = distance;
    }
  }
  return static_cast<std::uint8_t>(nearest);
}

void addSixteenths(Color& color, const Color& error, std::int32_t factor) {
  for (std::size_t channel = 0; channel < color.size(); ++channel) {
    color[channel] = sum(color[channel], product(error[channel], factor) >> 4);
  }
}

Color pixelAt(const WorkImage& image, std::int32_t x, std::int32_t y) {
  const auto row = image.row(y);
  const auto column = static_cast<std::size_t>(x);
  if (const auto& palette = image.palette()) {
    return colorOf(palette->entry(row[column]));
  }
  return {row[3 * column], row[3 * column + 1], row[3 * column + 2]};
}

// Dithers row by row. Without a protected grid, the grid is as large as the image.
class Ditherer {
 public:
  Ditherer(const WorkImage& image, std::vector<Color> colors, const RemapOptions& options)
      : image_(image),
        colors_(std::move(colors)),
        protectedEntry_(options.protectedEntry.value_or(-1)),
        skipsTransparent_(options.skipsTransparent),
        below_(static_cast<std::size_t>(image.width())) {
    if (const auto& grid = options.protectGrid) {
      grid_ = {std::clamp(grid->width, 1, ProtectGrid::kMaxSide), std::clamp(grid->height, 1, ProtectGrid::kMaxSide)};
    } else {
      grid_ = {image.width(), image.height()};
    }
    if (protectedEntry_ >= static_cast<std::int32_t>(colors_.size())) {
      protectedEntry_ = -1;
    }
  }

  void remapRow(std::int32_t y, std::span<std::uint8_t> indexes) {
    const std::vector<Color> above = below_;
    std::ranges::fill(below_, Color{});
    Color carried{};
    for (std::int32_t x = 0; x < image_.width(); ++x) {
      const auto column = static_cast<std::size_t>(x);
      if (skipsTransparent_ && image_.isTransparent(y, column)) {
        indexes[column] = 0;
        carried = {};
        continue;
      }
      const Color pixel = pixelAt(image_, x, y);
      if (protectedEntry_ >= 0 && pixel == colors_[static_cast<std::size_t>(protectedEntry_)]) {
        indexes[column] = static_cast<std::uint8_t>(protectedEntry_);
        carried = {};
        continue;
      }
      if (x % grid_.width == 0) {
        carried = {};
      }
      if (y % grid_.height != 0) {
        addSixteenths(carried, above[column], 16);
      }
      Color target = pixel;
      addSixteenths(target, carried, 1);
      indexes[column] = nearestOf(colors_, target);
      const Color& chosen = colors_[indexes[column]];
      for (std::size_t channel = 0; channel < pixel.size(); ++channel) {
        carried[channel] = sum(carried[channel], 16 * pixel[channel] - 16 * chosen[channel]);
      }
      spread(column, carried);
      Color next{};
      addSixteenths(next, carried, 7);
      carried = next;
    }
  }

 private:
  void spread(std::size_t column, const Color& error) {
    if (column > 0) {
      addSixteenths(below_[column - 1], error, 3);
    }
    addSixteenths(below_[column], error, 5);
    if (column + 1 < below_.size()) {
      addSixteenths(below_[column + 1], error, 1);
    }
  }

  const WorkImage& image_;
  std::vector<Color> colors_;
  std::int32_t protectedEntry_;
  bool skipsTransparent_;
  ProtectGrid grid_;
  std::vector<Color> below_;
};

}  // namespace

std::uint8_t literalNearest(std::span<const PaletteEntry> entries, const std::array<std::int32_t, 3>& target) {
  return nearestOf(colorsOf(entries), target);
}

bool literalRemap(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                  RemapProgress& progress) {
  std::vector<PaletteEntry> entries = entriesOf(palette);
  entries.resize(std::min(entries.size(), std::size_t{kMaxUsedEntries}));
  const std::vector<Color> colors = colorsOf(entries);
  result.prepare(image.width(), image.height(), entries);
  const bool keepsIndexes = options.mode == RemapMode::maintain;
  const LiteralEntries finder(entries, options.match);
  const bool isPlain =
      options.mode == RemapMode::dither && options.dither.isPlainDiffusion() && options.match == ColorMatch::rgb;
  const bool isDetailed = options.mode == RemapMode::ordered || (options.mode == RemapMode::dither && !isPlain);
  const std::vector<std::uint8_t> dithered =
      isDetailed ? literalDithering(image, entries, options) : std::vector<std::uint8_t>();
  Ditherer ditherer(image, colors, options);
  for (std::int32_t y = 0; y < image.height(); ++y) {
    const auto indexes = result.row(y);
    if (isDetailed) {
      std::ranges::copy(std::span(dithered).subspan(static_cast<std::size_t>(y) * indexes.size(), indexes.size()),
                        indexes.begin());
    } else if (isPlain) {
      ditherer.remapRow(y, indexes);
    } else if (!keepsIndexes) {
      for (std::int32_t x = 0; x < image.width(); ++x) {
        const Color pixel = pixelAt(image, x, y);
        indexes[static_cast<std::size_t>(x)] =
            options.match == ColorMatch::oklab ? finder.nearest(pixel) : nearestOf(colors, pixel);
      }
    } else if (image.palette()) {
      std::ranges::transform(image.row(y), indexes.begin(), [&](std::uint8_t index) {
        return static_cast<std::uint8_t>(index <= colors.size() ? index : 0);
      });
    } else {
      std::ranges::fill(indexes, std::uint8_t{0});
    }
    const bool isReported = isPlain || isDetailed || (!keepsIndexes && !image.palette());
    if (isReported && y % 16 == 0 && !progress.rowsDone(y + 1, result)) {
      return false;
    }
  }
  return true;
}

}  // namespace quillhue
