#include "support/literal_dithering.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>

#include "remap/ordered_dithering.h"
#include "support/literal_remap.h"

namespace quillhue {

namespace {

using Color = std::array<float, 3>;

Color colorOf(const PaletteEntry& color) {
  return {static_cast<float>(color.blue), static_cast<float>(color.green), static_cast<float>(color.red)};
}

std::uint8_t nearestOf(const LiteralEntries& entries, const Color& target) {
  std::array<std::int32_t, 3> rounded{};
  std::ranges::transform(target, rounded.begin(), [](float number) { return std::lrint(number); });
  return entries.nearest(rounded);
}

// Each matrix is four copies of the one of half its side, times 4, plus 0, 2, 3 and 1.
std::vector<std::vector<int>> bayerMatrix(std::size_t side) {
  if (side == 1) {
    return {{0}};
  }
  const auto half = bayerMatrix(side / 2);
  std::vector matrix(side, std::vector<int>(side));
  constexpr std::array<std::array<int, 2>, 2> kFirst{{{0, 2}, {3, 1}}};
  for (std::size_t y = 0; y < side; ++y) {
    for (std::size_t x = 0; x < side; ++x) {
      matrix[y][x] = 4 * half[y % half.size()][x % half.size()] + kFirst[y / half.size()][x / half.size()];
    }
  }
  return matrix;
}

class Dithering {
 public:
  Dithering(const WorkImage& image, std::span<const PaletteEntry> entries, const RemapOptions& options)
      : image_(image), entries_(entries), finder_(entries, options.match), options_(options) {
    const ProtectGrid whole{image.width(), image.height()};
    const ProtectGrid grid = options.protectGrid.value_or(whole);
    cellWidth_ = options.protectGrid ? std::clamp(grid.width, 1, ProtectGrid::kMaxSide) : grid.width;
    cellHeight_ = options.protectGrid ? std::clamp(grid.height, 1, ProtectGrid::kMaxSide) : grid.height;
  }

  std::vector<std::uint8_t> diffuse() {
    errors_.resize(image_.pixels().size());
    std::vector<std::uint8_t> indexes(placeOf(0, image_.height()));
    for (std::int32_t y = 0; y < image_.height(); ++y) {
      const bool isBackwards = options_.dither.isSerpentine && y % 2 == 1;
      for (std::int32_t i = 0; i < image_.width(); ++i) {
        const std::int32_t x = isBackwards ? image_.width() - 1 - i : i;
        indexes[placeOf(x, y)] = diffuse(x, y, isBackwards ? -1 : 1);
      }
    }
    return indexes;
  }

  std::vector<std::uint8_t> order() {
    const auto side = static_cast<std::size_t>(options_.dither.matrixSide);
    const auto matrix = bayerMatrix(side);
    const double amplitude = meanSpacing(entries_) * options_.dither.strength / 100;
    std::vector<std::uint8_t> indexes;
    for (std::int32_t y = 0; y < image_.height(); ++y) {
      for (std::int32_t x = 0; x < image_.width(); ++x) {
        const int rank =
            matrix[static_cast<std::size_t>(y % cellHeight_) % side][static_cast<std::size_t>(x % cellWidth_) % side];
        const double share = (rank + 0.5) / static_cast<double>(side * side) - 0.5;
        Color target = colorOf(pixelAt(x, y));
        std::ranges::for_each(target,
                              [&](float& number) { number += static_cast<float>(std::lround(amplitude * share)); });
        indexes.push_back(keptIndex(x, y).value_or(nearestOf(finder_, target)));
      }
    }
    return indexes;
  }

 private:
  [[nodiscard]] std::size_t placeOf(std::int32_t x, std::int32_t y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(image_.width()) + static_cast<std::size_t>(x);
  }

  [[nodiscard]] PaletteEntry pixelAt(std::int32_t x, std::int32_t y) const {
    const auto row = image_.row(y);
    const auto column = static_cast<std::size_t>(x);
    if (const auto& palette = image_.palette()) {
      return palette->entry(row[column]);
    }
    return {row[3 * column + 2], row[3 * column + 1], row[3 * column]};
  }

  // The index of a pixel that dithering leaves alone.
  [[nodiscard]] std::optional<std::uint8_t> keptIndex(std::int32_t x, std::int32_t y) const {
    const std::int32_t entry = options_.protectedEntry.value_or(-1);
    const bool isInUse = entry >= 0 && entry < static_cast<std::int32_t>(entries_.size());
    const auto index = static_cast<std::uint8_t>(isInUse ? entry : 0);
    const bool isKept = (options_.skipsTransparent && image_.isTransparent(y, static_cast<std::size_t>(x))) ||
                        (isInUse && pixelAt(x, y) == entries_[index]);
    return isKept ? std::optional(index) : std::nullopt;
  }

  std::uint8_t diffuse(std::int32_t x, std::int32_t y, std::int32_t direction) {
    if (const auto kept = keptIndex(x, y)) {
      return *kept;
    }
    Color target = colorOf(pixelAt(x, y));
    for (std::size_t channel = 0; channel < target.size(); ++channel) {
      const float limit = options_.dither.clampsErrors ? 255 : 16384;
      target[channel] = std::clamp(target[channel] + errors_[placeOf(x, y)][channel],
                                   options_.dither.clampsErrors ? 0 : -limit, limit);
    }
    const std::uint8_t index = nearestOf(finder_, target);
    const Color chosen = colorOf(entries_[index]);
    const DiffusionKernel& kernel =
        options_.dither.kernel != nullptr ? *options_.dither.kernel : diffusionKernels().front();
    for (std::int32_t down = 0; down < 3; ++down) {
      for (std::int32_t right = -2; right <= 2; ++right) {
        const std::int32_t column = x + direction * right;
        if (column < 0 || column >= image_.width() || column / cellWidth_ != x / cellWidth_ ||
            y + down >= image_.height() || (y + down) / cellHeight_ != y / cellHeight_) {
          continue;
        }
        const auto weight = static_cast<float>(
            kernel.weights[static_cast<std::size_t>(down)][static_cast<std::size_t>(std::int64_t{right} + 2)] *
            options_.dither.strength);
        for (std::size_t channel = 0; channel < target.size(); ++channel) {
          errors_[placeOf(column, y + down)][channel] +=
              (target[channel] - chosen[channel]) * (weight / static_cast<float>(kernel.divisor * 100));
        }
      }
    }
    return index;
  }

  const WorkImage& image_;
  std::span<const PaletteEntry> entries_;
  LiteralEntries finder_;
  const RemapOptions& options_;
  std::int32_t cellWidth_;
  std::int32_t cellHeight_;
  std::vector<Color> errors_;
};

}  // namespace

LiteralEntries::LiteralEntries(std::span<const PaletteEntry> entries, ColorMatch match) : entries_(entries) {
  if (match == ColorMatch::oklab) {
    std::ranges::transform(entries, std::back_inserter(labs_), oklabOf);
  }
}

std::uint8_t LiteralEntries::nearest(const std::array<std::int32_t, 3>& target) const {
  if (labs_.empty()) {
    return literalNearest(entries_, target);
  }
  const Oklab color = oklabOf({clampToByte(target[2]), clampToByte(target[1]), clampToByte(target[0])});
  const auto distanceTo = [&](const Oklab& other) {
    const double lightness = color.lightness - other.lightness;
    const double a = color.a - other.a;
    const double b = color.b - other.b;
    return lightness * lightness + a * a + b * b;
  };
  std::size_t nearest = 0;
  for (std::size_t index = 1; index < labs_.size(); ++index) {
    nearest = distanceTo(labs_[index]) < distanceTo(labs_[nearest]) ? index : nearest;
  }
  return static_cast<std::uint8_t>(nearest);
}

std::vector<std::uint8_t> literalDithering(const WorkImage& image, std::span<const PaletteEntry> entries,
                                           const RemapOptions& options) {
  Dithering dithering(image, entries, options);
  return options.mode == RemapMode::ordered ? dithering.order() : dithering.diffuse();
}

}  // namespace quillhue
