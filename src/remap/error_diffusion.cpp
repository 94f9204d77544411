#include "remap/error_diffusion.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

#include "remap/eight_colors.h"

namespace quillhue {

namespace {

// A color that no pixel has.
constexpr std::uint32_t kNoPixel = 0xFFFFFFFF;

class DirectPixels {
 public:
  explicit DirectPixels(const WorkImage& image) : image_(image) {}

  class Row {
   public:
    explicit Row(const std::uint8_t* pixels) : pixels_(pixels) {}

    [[nodiscard]] std::uint32_t at(std::ptrdiff_t x) const { return read<3>(x); }
    // Faster, but not for the last pixel, behind which nothing may be read.
    [[nodiscard]] std::uint32_t atInner(std::ptrdiff_t x) const { return read<4>(x) & 0xFFFFFF; }

   private:
    template <std::size_t bytes>
    [[nodiscard]] std::uint32_t read(std::ptrdiff_t x) const {
      std::uint32_t pixel = 0;
      std::memcpy(&pixel, pixels_ + 3 * x, bytes);
      return pixel;
    }

    const std::uint8_t* pixels_;
  };

  [[nodiscard]] Row row(std::int32_t y) const { return Row(image_.row(y).data()); }

 private:
  const WorkImage& image_;
};

// The same with `mark` for transparent pixels.
class MaskedPixels {
 public:
  MaskedPixels(const WorkImage& image, std::uint32_t mark) : image_(image), pixels_(image), mark_(mark) {}

  class Row {
   public:
    Row(DirectPixels::Row pixels, const std::uint8_t* transparent, std::uint32_t mark)
        : pixels_(pixels), transparent_(transparent), mark_(mark) {}

    [[nodiscard]] std::uint32_t at(std::ptrdiff_t x) const { return transparent_[x] != 0 ? mark_ : pixels_.at(x); }
    [[nodiscard]] std::uint32_t atInner(std::ptrdiff_t x) const {
      return transparent_[x] != 0 ? mark_ : pixels_.atInner(x);
    }

   private:
    DirectPixels::Row pixels_;
    const std::uint8_t* transparent_;
    std::uint32_t mark_;
  };

  [[nodiscard]] Row row(std::int32_t y) const { return {pixels_.row(y), image_.transparentRow(y).data(), mark_}; }

 private:
  const WorkImage& image_;
  DirectPixels pixels_;
  std::uint32_t mark_;
};

class IndexedPixels {
 public:
  IndexedPixels(const WorkImage& image, const Palette& palette) : image_(image) {
    std::ranges::transform(entriesOf(palette), colors_.begin(), pixelOf);
  }
  // With `mark` for transparent indexes.
  IndexedPixels(const WorkImage& image, const Palette& palette, std::uint32_t mark) : IndexedPixels(image, palette) {
    for (std::size_t index = 0; index < colors_.size(); ++index) {
      colors_[index] = image.transparentIndexes()[index] ? mark : colors_[index];
    }
  }

  class Row {
   public:
    Row(const std::uint32_t* colors, const std::uint8_t* indexes) : colors_(colors), indexes_(indexes) {}

    [[nodiscard]] std::uint32_t at(std::ptrdiff_t x) const { return colors_[indexes_[x]]; }
    [[nodiscard]] std::uint32_t atInner(std::ptrdiff_t x) const { return at(x); }

   private:
    const std::uint32_t* colors_;
    const std::uint8_t* indexes_;
  };

  [[nodiscard]] Row row(std::int32_t y) const { return {colors_.data(), image_.row(y).data()}; }

 private:
  const WorkImage& image_;
  std::array<std::uint32_t, 256> colors_{};
};

struct FewColors {
  [[gnu::always_inline]] static Lanes find(NearestEntry& nearest, const EightColors& targets) {
    return nearest.findOfFew(targets);
  }
};
struct ManyColors {
  [[gnu::always_inline]] static Lanes find(NearestEntry& nearest, const EightColors& targets) {
    return nearest.findOfMany(targets);
  }
};

// Remaps eight rows together, one in each lane, each two columns behind the row above: the error that a row leaves in a
// column is complete one step later, and the row below takes it in the step after.
template <typename Pixels, typename Colors, bool isLimited>
class Diffusion final : public ErrorDiffusion {
 public:
  Diffusion(Pixels pixels, NearestEntry& nearest, const Limits& limits, RemappedImage& result)
      : pixels_(std::move(pixels)),
        nearest_(nearest),
        limits_(limits),
        result_(result),
        width_(result.width()),
        left_(static_cast<std::size_t>(result.width())) {
    const auto colors = nearest.colors();
    std::ranges::transform(colors, palettePixels_.begin(), pixelOf);
    if (const auto& entry = limits.protectedEntry) {
      protectedPixel_ = pixelOf(colors[*entry]);
      protectedIndex_ = *entry;
    }
  }

  void remapRows(std::int32_t count) override {
    Wave wave = startWave(count);
    std::ptrdiff_t time = 0;
    if (count == kRowsTogether) {
      for (; time <= kLag; ++time) {
        stepAtEdge(wave, time);
      }
      time = stepInside(wave, time);
    }
    for (; time <= width_ + std::ptrdiff_t{2} * (count - 1); ++time) {
      stepAtEdge(wave, time);
    }
    row_ += count;
  }

 private:
  static_assert(kRowsTogether == Lanes::kCount);
  static constexpr std::ptrdiff_t kLag = std::ptrdiff_t{2} * (kRowsTogether - 1);

  struct Row {
    typename Pixels::Row pixels;
    std::uint8_t* indexes;
  };

  // The state of the rows that run together.
  struct Wave {
    std::array<Row, Lanes::kCount> rows;
    std::int32_t count;
    EightColors carried{};
    // The error for the row below in the column before, without the share of the next pixel.
    EightColors pending{};
    EightColors lastSixteenth{};
    // The complete error for the row below, two columns before.
    EightColors completed{};
    Lanes columnInCell;
    Lanes takesAbove;
  };

  Wave startWave(std::int32_t count) {
    const auto rowAt = [&](std::int32_t place) {
      // Unused lanes get the last row, but never read it.
      const std::int32_t y = row_ + std::min(place, count - 1);
      return Row{pixels_.row(y), result_.row(y).data()};
    };
    EightNumbers columns{};
    EightNumbers takesAbove{};
    for (std::int32_t place = 0; place < kRowsTogether; ++place) {
      const auto lane = static_cast<std::size_t>(place);
      // Becomes 0 at the row's first pixel.
      columns[lane] = (limits_.gridWidth - 2 * place % limits_.gridWidth) % limits_.gridWidth;
      takesAbove[lane] = (row_ + place) % limits_.gridHeight != 0 ? -1 : 0;
    }
    return {{rowAt(0), rowAt(1), rowAt(2), rowAt(3), rowAt(4), rowAt(5), rowAt(6), rowAt(7)},
            count,
            {},
            {},
            {},
            {},
            lanesOf(columns),
            lanesOf(takesAbove)};
  }

  // Remaps one pixel of each row and returns the indexes. `left` is the error from the row above the first one. At an
  // edge, lanes that are not `isInside` have no pixel and leave no error.
  template <bool isAtEdge>
  [[gnu::always_inline]] Lanes step(Wave& wave, Lanes pixels, const ColorVector& left, Lanes isInside) {
    const EightColors received{movedUp(wave.completed.blue, left[0]), movedUp(wave.completed.green, left[1]),
                               movedUp(wave.completed.red, left[2])};
    const EightColors above = isLimited ? received & wave.takesAbove : received;
    if constexpr (isLimited) {
      wave.carried = wave.carried & ~(wave.columnInCell == Lanes{});
      wave.columnInCell = wave.columnInCell + Lanes::all(1);
      wave.columnInCell = wave.columnInCell & ~(wave.columnInCell == Lanes::all(limits_.gridWidth));
    }
    const EightColors colors = colorsOfPixels(pixels);
    EightColors errors = wave.carried + above;
    Lanes indexes = Colors::find(nearest_, colors + (errors >> 4));
    const Lanes chosen = lanesBy([&](auto lane) { return palettePixels_[lowHalfOf<lane>(indexes)]; });
    errors = errors + ((colors - colorsOfPixels(chosen)) << 4);
    if constexpr (isLimited) {
      const Lanes isProtected = pixels == Lanes::all(static_cast<std::int32_t>(protectedPixel_));
      errors = errors & ~isProtected;
      indexes = choose(isProtected, Lanes::all(protectedIndex_), indexes);
    }
    if constexpr (isAtEdge) {
      errors = errors & isInside;
    }
    // Errors are also left below the lower border of a grid's cell, where the next row does not take them.
    wave.completed = wave.pending + (((errors << 1) + errors) >> 4);
    wave.pending = wave.lastSixteenth + (((errors << 2) + errors) >> 4);
    wave.lastSixteenth = errors >> 4;
    wave.carried = ((errors << 3) - errors) >> 4;
    return indexes;
  }

  // Runs the steps from `time` on in which all rows are inside the image and none is at its last pixel. Returns the
  // time after them.
  std::ptrdiff_t stepInside(Wave& outside, std::ptrdiff_t time) {
    // A local copy can be kept in registers.
    Wave wave = outside;
    const auto columnOf = [&](std::size_t lane) { return time - 2 * static_cast<std::ptrdiff_t>(lane); };
    const auto lastOf = [](Lanes lanes) { return _mm_cvtsi128_si32(_mm_shuffle_epi32(lanes.high, 0xFF)); };
    for (; time < width_ - 1; ++time) {
      const Lanes pixels = lanesBy([&](auto lane) { return wave.rows[lane].pixels.atInner(columnOf(lane)); });
      const Lanes indexes = step<false>(wave, pixels, left_[static_cast<std::size_t>(time)], {});
      forEachLane([&](auto lane) {
        wave.rows[lane].indexes[columnOf(lane)] = static_cast<std::uint8_t>(lowHalfOf<lane>(indexes));
      });
      left_[static_cast<std::size_t>(time - kLag - 1)] = {lastOf(wave.completed.blue), lastOf(wave.completed.green),
                                                          lastOf(wave.completed.red)};
    }
    outside = wave;
    return time;
  }

  // Runs a step in which some rows may be before their first or after their last pixel.
  void stepAtEdge(Wave& wave, std::ptrdiff_t time) {
    const auto columnOf = [time](std::size_t lane) { return time - 2 * static_cast<std::ptrdiff_t>(lane); };
    EightNumbers pixels{};
    EightNumbers isInside{};
    const auto last = static_cast<std::size_t>(wave.count) - 1;
    for (std::size_t lane = 0; lane <= last; ++lane) {
      if (columnOf(lane) >= 0 && columnOf(lane) < width_) {
        pixels[lane] = static_cast<std::int32_t>(wave.rows[lane].pixels.at(columnOf(lane)));
        isInside[lane] = -1;
      }
    }
    const ColorVector left = time < width_ ? left_[static_cast<std::size_t>(time)] : ColorVector{};
    const EightNumbers indexes = numbersOf(step<true>(wave, lanesOf(pixels), left, lanesOf(isInside)));
    for (std::size_t lane = 0; lane <= last; ++lane) {
      if (isInside[lane] != 0) {
        wave.rows[lane].indexes[columnOf(lane)] = static_cast<std::uint8_t>(indexes[lane]);
      }
    }
    if (columnOf(last) > 0) {
      left_[static_cast<std::size_t>(columnOf(last) - 1)] = {numbersOf(wave.completed.blue)[last],
                                                             numbersOf(wave.completed.green)[last],
                                                             numbersOf(wave.completed.red)[last]};
    }
  }

  Pixels pixels_;
  NearestEntry& nearest_;
  Limits limits_;
  RemappedImage& result_;
  std::ptrdiff_t width_;
  std::int32_t row_ = 0;
  std::uint32_t protectedPixel_ = kNoPixel;
  std::uint8_t protectedIndex_ = 0;
  std::array<std::uint32_t, 256> palettePixels_{};
  // The error that the rows done so far have left in each column.
  std::vector<ColorVector> left_;
};

// One color leaves nothing to choose, whatever the errors.
class OneColor final : public ErrorDiffusion {
 public:
  explicit OneColor(RemappedImage& result) : result_(result) {}

  void remapRows(std::int32_t count) override {
    for (const std::int32_t end = row_ + count; row_ < end; ++row_) {
      std::ranges::fill(result_.row(row_), std::uint8_t{0});
    }
  }

 private:
  RemappedImage& result_;
  std::int32_t row_ = 0;
};

using Limits = std::optional<ErrorDiffusion::Limits>;

template <typename Colors, typename Pixels>
std::unique_ptr<ErrorDiffusion> diffuse(Pixels pixels, NearestEntry& nearest, const Limits& limits,
                                        RemappedImage& result) {
  if (limits) {
    return std::make_unique<Diffusion<Pixels, Colors, true>>(std::move(pixels), nearest, *limits, result);
  }
  const ErrorDiffusion::Limits none{{}, result.width(), result.height()};
  return std::make_unique<Diffusion<Pixels, Colors, false>>(std::move(pixels), nearest, none, result);
}

template <typename Pixels>
std::unique_ptr<ErrorDiffusion> diffuse(Pixels pixels, NearestEntry& nearest, const Limits& limits,
                                        RemappedImage& result) {
  if (nearest.hasFewColors()) {
    return diffuse<FewColors>(std::move(pixels), nearest, limits, result);
  }
  return diffuse<ManyColors>(std::move(pixels), nearest, limits, result);
}

// Protected pixels take and leave no errors, so transparent ones are made like them.
std::unique_ptr<ErrorDiffusion> diffuseAround(const WorkImage& image, NearestEntry& nearest,
                                              const ErrorDiffusion::Limits& limits, RemappedImage& result) {
  const auto& entry = limits.protectedEntry;
  const std::uint32_t mark = entry ? pixelOf(nearest.colors()[*entry]) : kNoPixel;
  if (const auto& palette = image.palette()) {
    return diffuse(IndexedPixels(image, *palette, mark), nearest, limits, result);
  }
  return diffuse(MaskedPixels(image, mark), nearest, limits, result);
}

}  // namespace

std::unique_ptr<ErrorDiffusion> diffuseErrors(const WorkImage& image, NearestEntry& nearest,
                                              const std::optional<ErrorDiffusion::Limits>& limits,
                                              RemappedImage& result) {
  if (nearest.colors().size() == 1) {
    return std::make_unique<OneColor>(result);
  }
  if (limits && limits->skipsTransparent && image.hasTransparency()) {
    return diffuseAround(image, nearest, *limits, result);
  }
  if (const auto& palette = image.palette()) {
    return diffuse(IndexedPixels(image, *palette), nearest, limits, result);
  }
  return diffuse(DirectPixels(image), nearest, limits, result);
}

}  // namespace quillhue
