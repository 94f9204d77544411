#include "remap/error_diffusion.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

#include "remap/color_lanes.h"

namespace quillhue {

namespace {

// What no pixel is.
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
  static std::uint8_t find(NearestEntry& nearest, ColorLanes target) { return nearest.findOfFew(target); }
};
struct ManyColors {
  static std::uint8_t find(NearestEntry& nearest, ColorLanes target) { return nearest.findOfMany(target); }
};

// Several rows run together, each two columns behind the one above: what a row leaves in a column is complete when the
// next pixel is done, and is taken by the row below in the step after.
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
    std::ranges::transform(colors, sixteenfold_.begin(),
                           [](const PaletteEntry& color) { return shiftedLeft<4>(lanesOfPixel(pixelOf(color))); });
    if (const auto& entry = limits.protectedEntry) {
      protectedPixel_ = pixelOf(colors[*entry]);
      protectedIndex_ = *entry;
    }
  }

  void remapRows(std::int32_t count) override {
    if (count == kRowsTogether) {
      remapWave(std::make_index_sequence<kRowsTogether>());
    } else {
      remapWave(std::make_index_sequence<1>());
    }
    row_ += count;
  }

 private:
  struct Row {
    typename Pixels::Row pixels;
    std::uint8_t* indexes;
    bool takesAbove;
    std::int32_t columnInCell = 0;
    ColorLanes carried{};
    // What the column before gets when the next error is known.
    ColorLanes pending{};
    ColorLanes lastSixteenth{};
    // What the row has just completed for the row below.
    ColorLanes completed{};
  };

  Row startRow(std::int32_t y) { return {pixels_.row(y), result_.row(y).data(), y % limits_.gridHeight != 0}; }

  [[gnu::always_inline]] void step(Row& row, std::ptrdiff_t x, std::uint32_t pixel, ColorLanes above) {
    if constexpr (isLimited) {
      row.carried = passed(row.carried, row.columnInCell != 0);
      row.columnInCell = row.columnInCell + 1 == limits_.gridWidth ? 0 : row.columnInCell + 1;
      above = passed(above, row.takesAbove);
    }
    ColorLanes error;
    if (isLimited && pixel == protectedPixel_) {
      row.indexes[x] = protectedIndex_;
    } else {
      const ColorLanes color = lanesOfPixel(pixel);
      error = row.carried + above;
      const std::uint8_t index = Colors::find(nearest_, color + sixteenth(error));
      row.indexes[x] = index;
      error = error + (shiftedLeft<4>(color) - sixteenfold_[index]);
    }
    // The grid's cells do not stop what goes down: what is left across a border is not taken there.
    row.completed = row.pending + sixteenth(shiftedLeft<1>(error) + error);
    row.pending = row.lastSixteenth + sixteenth(shiftedLeft<2>(error) + error);
    row.lastSixteenth = sixteenth(error);
    row.carried = sixteenth(shiftedLeft<3>(error) - error);
  }

  // What the row gets from above in column x: from the row that runs before it, or from the rows done before.
  template <std::size_t place, std::size_t count>
  [[nodiscard]] ColorLanes above(const std::array<Row, count>& rows, std::ptrdiff_t x) const {
    if constexpr (place == 0) {
      return left_[static_cast<std::size_t>(x)];
    } else {
      return rows[place - 1].completed;
    }
  }

  // Step `time` of one row, which may be before its first or after its last pixel.
  template <std::size_t place, std::size_t count>
  void stepAtEdge(std::array<Row, count>& rows, std::ptrdiff_t time) {
    const std::ptrdiff_t x = time - 2 * static_cast<std::ptrdiff_t>(place);
    if (x < 0 || x > width_) {
      return;
    }
    Row& row = rows[place];
    if (x < width_) {
      step(row, x, row.pixels.at(x), above<place>(rows, x));
    } else {
      row.completed = row.pending;
    }
    if (place == count - 1 && x > 0) {
      left_[static_cast<std::size_t>(x - 1)] = row.completed;
    }
  }

  template <std::size_t... places>
  void remapWave(std::index_sequence<places...> /*of the rows*/) {
    constexpr std::size_t kLast = sizeof...(places) - 1;
    constexpr auto kLag = static_cast<std::ptrdiff_t>(2 * kLast);
    std::array<Row, kLast + 1> rows{startRow(row_ + static_cast<std::int32_t>(places))...};
    // From below, so that each row still finds what the one above it has completed a step ago.
    const auto atEdge = [&](std::ptrdiff_t time) { (stepAtEdge<kLast - places>(rows, time), ...); };
    const auto inside = [&]<std::size_t place>(std::ptrdiff_t time) {
      const std::ptrdiff_t x = time - 2 * static_cast<std::ptrdiff_t>(place);
      step(rows[place], x, rows[place].pixels.atInner(x), above<place>(rows, x));
    };
    std::ptrdiff_t time = 0;
    for (; time <= kLag; ++time) {
      atEdge(time);
    }
    for (; time < width_ - 1; ++time) {
      (inside.template operator()<kLast - places>(time), ...);
      left_[static_cast<std::size_t>(time - kLag - 1)] = rows[kLast].completed;
    }
    for (; time <= width_ + kLag; ++time) {
      atEdge(time);
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
  // For each entry 16 times its color.
  std::array<ColorLanes, 256> sixteenfold_{};
  // For each column what the rows done have left.
  std::vector<ColorLanes> left_;
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
