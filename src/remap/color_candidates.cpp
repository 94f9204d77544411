#include "remap/color_candidates.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>

#include "remap/color_quad.h"

namespace quillhue {

namespace {

constexpr std::size_t kFour = 4;

struct Floats {
  __m128 four;
};

constexpr std::size_t inFours(std::size_t count) { return (count + kFour - 1) / kFour * kFour; }

// Returns indexes of all colors but repeated ones.
std::vector<std::uint8_t> distinctOf(std::span<const PaletteEntry> colors) {
  constexpr std::uint32_t kPlaces = 1024;
  constexpr std::uint32_t kEmpty = 0xFFFFFFFF;
  std::array<std::uint32_t, kPlaces> seen{};
  seen.fill(kEmpty);
  std::vector<std::uint8_t> distinct;
  distinct.reserve(colors.size());
  for (std::size_t index = 0; index < colors.size(); ++index) {
    const std::uint32_t pixel = pixelOf(colors[index]);
    // Fibonacci hashing.
    std::uint32_t place = (pixel * 0x9E3779B1U) >> 22;
    while (seen[place] != kEmpty && seen[place] != pixel) {
      place = (place + 1) % kPlaces;
    }
    if (seen[place] == kEmpty) {
      seen[place] = pixel;
      distinct.push_back(static_cast<std::uint8_t>(index));
    }
  }
  return distinct;
}

// Tells whether colors beat others in a box. The difference of the squared distances of two colors is linear in the
// target, so it is greatest in a corner of the box.
class Contest {
 public:
  explicit Contest(const ColorBox& box) {
    constexpr std::int32_t kExact = 8192;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      low_[channel] = {_mm_set1_ps(static_cast<float>(2 * box.low[channel]))};
      high_[channel] = {_mm_set1_ps(static_cast<float>(2 * box.high[channel]))};
      if (std::max(std::abs(box.low[channel]), std::abs(box.high[channel])) > kExact) {
        // More than the rounding errors of all steps.
        margin_ = 64;
      }
    }
  }

  // Returns a bit for each of four pairs: whether the winner is nearer than the loser everywhere in the box.
  template <typename Four>
  [[nodiscard]] unsigned beats(const Four& winners, const Four& losers) const {
    __m128 greatest = _mm_add_ps(_mm_sub_ps(winners.squaredLengths, losers.squaredLengths), _mm_set1_ps(margin_));
    for (std::size_t channel = 0; channel < 3; ++channel) {
      const __m128 step = _mm_sub_ps(losers.channels[channel].four, winners.channels[channel].four);
      greatest =
          _mm_add_ps(greatest, _mm_max_ps(_mm_mul_ps(step, low_[channel].four), _mm_mul_ps(step, high_[channel].four)));
    }
    return static_cast<unsigned>(_mm_movemask_ps(_mm_cmplt_ps(greatest, _mm_setzero_ps())));
  }

 private:
  std::array<Floats, 3> low_;
  std::array<Floats, 3> high_;
  float margin_ = 0;
};

struct FourColors {
  std::array<Floats, 3> channels;
  __m128 squaredLengths;

  template <typename Columns>
  static FourColors from(const Columns& columns, std::size_t place) {
    const auto at = [place](const std::vector<float>& column) { return _mm_loadu_ps(&column[place]); };
    return {{{{at(columns.channels[0])}, {at(columns.channels[1])}, {at(columns.channels[2])}}},
            at(columns.squaredLengths)};
  }
  // One color four times.
  template <typename Columns>
  static FourColors all(const Columns& columns, std::size_t place) {
    const auto at = [place](const std::vector<float>& column) { return _mm_set1_ps(column[place]); };
    return {{{{at(columns.channels[0])}, {at(columns.channels[1])}, {at(columns.channels[2])}}},
            at(columns.squaredLengths)};
  }
};

}  // namespace

ColorCandidates::Columns::Columns(std::size_t most) : squaredLengths(inFours(most)) {
  indexes.reserve(most);
  for (auto& channel : channels) {
    channel.resize(inFours(most));
  }
}

void ColorCandidates::Columns::assign(const ColorCandidates& source, std::span<const std::uint8_t> among) {
  indexes.assign(among.begin(), among.end());
  for (std::size_t place = 0; place < among.size(); ++place) {
    const PaletteEntry& color = source.colors_[among[place]];
    channels[0][place] = color.blue;
    channels[1][place] = color.green;
    channels[2][place] = color.red;
    squaredLengths[place] = static_cast<float>(squaredLength(color));
  }
  complete();
}

void ColorCandidates::Columns::append(const Columns& other, std::size_t place) {
  const std::size_t end = indexes.size();
  for (std::size_t channel = 0; channel < channels.size(); ++channel) {
    channels[channel][end] = other.channels[channel][place];
  }
  squaredLengths[end] = other.squaredLengths[place];
  indexes.push_back(other.indexes[place]);
}

void ColorCandidates::Columns::complete() {
  constexpr float kFar = 1e30F;
  for (std::size_t place = indexes.size(); place < inFours(indexes.size()); ++place) {
    for (auto& channel : channels) {
      channel[place] = 0;
    }
    squaredLengths[place] = kFar;
  }
}

ColorCandidates::ColorCandidates(std::span<const PaletteEntry> colors)
    : colors_(colors.begin(), colors.end()),
      distinct_(distinctOf(colors)),
      all_(distinct_.size()),
      some_(distinct_.size()),
      rivals_(distinct_.size()),
      scores_(inFours(distinct_.size())) {
  all_.assign(*this, distinct_);
  candidates_.reserve(distinct_.size());
}

std::size_t ColorCandidates::nearestToMiddle(const Columns& columns, const ColorBox& box) {
  const std::size_t count = columns.indexes.size();
  std::array<Floats, 3> twiceMiddle;
  for (std::size_t channel = 0; channel < 3; ++channel) {
    twiceMiddle[channel] = {_mm_set1_ps(static_cast<float>(box.low[channel] + box.high[channel]))};
  }
  __m128 least = _mm_set1_ps(std::numeric_limits<float>::max());
  for (std::size_t place = 0; place < count; place += kFour) {
    const FourColors four = FourColors::from(columns, place);
    __m128 score = four.squaredLengths;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      score = _mm_sub_ps(score, _mm_mul_ps(twiceMiddle[channel].four, four.channels[channel].four));
    }
    _mm_storeu_ps(&scores_[place], score);
    least = _mm_min_ps(least, score);
  }
  least = _mm_min_ps(least, _mm_shuffle_ps(least, least, _MM_SHUFFLE(1, 0, 3, 2)));
  least = _mm_min_ps(least, _mm_shuffle_ps(least, least, _MM_SHUFFLE(2, 3, 0, 1)));
  for (std::size_t place = 0;; place += kFour) {
    const int found = _mm_movemask_ps(_mm_cmpeq_ps(_mm_loadu_ps(&scores_[place]), least));
    if (found != 0) {
      return place + static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(found)));
    }
  }
}

std::span<const std::uint8_t> ColorCandidates::within(const ColorBox& box, std::span<const std::uint8_t> among) {
  const bool areAll = among.size() == distinct_.size();
  if (!areAll) {
    some_.assign(*this, among);
  }
  keepUnbeaten(areAll ? all_ : some_, box);
  // Comparing more rivals with each other would take too long.
  constexpr std::size_t kMostRivals = 128;
  if (rivals_.indexes.size() > kMostRivals) {
    return rivals_.indexes;
  }
  dropBeaten(box);
  return candidates_;
}

// Makes rivals_ from the colors that are not beaten by the one that is nearest to the middle of the box. Few are left.
void ColorCandidates::keepUnbeaten(const Columns& columns, const ColorBox& box) {
  const std::size_t nearest = nearestToMiddle(columns, box);
  const Contest contest(box);
  const FourColors winner = FourColors::all(columns, nearest);
  rivals_.indexes.clear();
  // It probably beats other rivals too, so it comes first.
  rivals_.append(columns, nearest);
  for (std::size_t place = 0; place < columns.indexes.size(); place += kFour) {
    unsigned unbeaten = ~contest.beats(winner, FourColors::from(columns, place)) & 15U;
    for (; unbeaten != 0; unbeaten &= unbeaten - 1) {
      const std::size_t rival = place + static_cast<std::size_t>(std::countr_zero(unbeaten));
      if (rival != nearest && rival < columns.indexes.size()) {
        rivals_.append(columns, rival);
      }
    }
  }
  rivals_.complete();
}

// Makes candidates_ from the rivals that no other one beats. A rival that is beaten itself may be the one that beats
// another: whoever beats it also beats the other.
void ColorCandidates::dropBeaten(const ColorBox& box) {
  const Contest contest(box);
  candidates_.clear();
  const std::size_t rivals = rivals_.indexes.size();
  for (std::size_t rival = 0; rival < rivals; ++rival) {
    const FourColors loser = FourColors::all(rivals_, rival);
    bool isBeaten = false;
    for (std::size_t place = 0; place < rivals && !isBeaten; place += kFour) {
      isBeaten = contest.beats(FourColors::from(rivals_, place), loser) != 0;
    }
    if (!isBeaten) {
      candidates_.push_back(rivals_.indexes[rival]);
    }
  }
}

}  // namespace quillhue
