#include "remap/k_means.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace quillhue {

namespace {

// K-means ends when a round gains less than this part of the error.
constexpr double kCoarseGain = 1e-3;
constexpr double kFineGain = 1e-5;
constexpr int kMostRounds = 100;

// Returns whether all points of a box are at least as near to `winner` as to `loser`.
bool isBeaten(const Channels<float>& loser, const Channels<float>& winner, const ColorTree::Node& box) {
  // The corner of the box that favors the loser most.
  Channels<float> corner{};
  for (std::size_t channel = 0; channel < corner.size(); ++channel) {
    corner[channel] = loser[channel] > winner[channel] ? box.high[channel] : box.low[channel];
  }
  return squaredDistance(loser, corner) >= squaredDistance(winner, corner);
}

class Clusters {
 public:
  Clusters(const ColorTree& tree, std::vector<Channels<float>> centers) : tree_(&tree), centers_(std::move(centers)) {}

  [[nodiscard]] const std::vector<Channels<float>>& centers() const { return centers_; }

  // Runs rounds until one gains less than `leastGain`. Returns the error.
  double improve(double leastGain) {
    double error = moveCenters();
    for (int round = 1; round < kMostRounds; ++round) {
      const double before = std::exchange(error, moveCenters());
      if (before - error <= leastGain * before) {
        break;
      }
    }
    return error;
  }

  // Divides the `count` clusters with the largest errors.
  void add(std::size_t count) {
    std::vector<double> errors;
    std::ranges::transform(sums_, std::back_inserter(errors), [](const ColorSums& sums) { return sums.spread(); });
    for (const std::size_t place : sortedPlaces(errors, std::greater())) {
      if (count-- == 0) {
        break;
      }
      // Moves along the channel in which the colors differ most, by their standard deviation.
      const Channels<double> variances = sums_[place].variances();
      const auto channel = static_cast<std::size_t>(std::ranges::max_element(variances) - variances.begin());
      const auto step = static_cast<float>(std::sqrt(variances[channel]));
      centers_.push_back(centers_[place]);
      centers_[place][channel] -= step;
      centers_.back()[channel] += step;
    }
  }

  // Removes the `count` centers whose colors have another center close by. The nearest center of a removed one stays.
  void remove(std::size_t count) {
    std::vector<double> costs;
    std::vector<std::size_t> neighbors;
    for (std::size_t i = 0; i < centers_.size(); ++i) {
      float least = std::numeric_limits<float>::max();
      std::size_t neighbor = 0;
      for (std::size_t j = 0; j < centers_.size(); ++j) {
        const float distance = squaredDistance(centers_[i], centers_[j]);
        if (j != i && distance < least) {
          least = distance;
          neighbor = j;
        }
      }
      costs.push_back(sums_[i].weight * static_cast<double>(least));
      neighbors.push_back(neighbor);
    }
    enum class State : std::uint8_t { free, kept, removed };
    std::vector<State> states(centers_.size());
    for (const bool isStrict : {true, false}) {
      for (const std::size_t place : sortedPlaces(costs, std::less())) {
        if (count > 0 && (states[place] == State::free || (!isStrict && states[place] == State::kept))) {
          states[place] = State::removed;
          State& neighbor = states[neighbors[place]];
          neighbor = neighbor == State::free ? State::kept : neighbor;
          --count;
        }
      }
    }
    std::vector<Channels<float>> left;
    for (std::size_t i = 0; i < centers_.size(); ++i) {
      if (states[i] != State::removed) {
        left.push_back(centers_[i]);
      }
    }
    centers_ = std::move(left);
  }

 private:
  // Returns the places of the numbers, sorted by the numbers.
  template <typename Less>
  static std::vector<std::size_t> sortedPlaces(const std::vector<double>& numbers, Less less) {
    std::vector<std::size_t> places(numbers.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::sort(places, less, [&](std::size_t place) { return std::pair(numbers[place], place); });
    return places;
  }

  // A round: moves the centers to the means of the colors that are nearest to them. Returns the error.
  double moveCenters() {
    sums_.assign(centers_.size(), ColorSums());
    candidates_.resize(centers_.size());
    std::iota(candidates_.begin(), candidates_.end(), std::uint32_t{0});
    assign(tree_->nodes().front(), 0);
    double error = 0;
    for (std::size_t i = 0; i < centers_.size(); ++i) {
      if (sums_[i].weight > 0) {
        centers_[i] = sums_[i].mean();
        error += sums_[i].spread();
      }
    }
    return error;
  }

  // Assigns the colors of a node to the nearest of the candidates from the place `first` on.
  void assign(const ColorTree::Node& node, std::size_t first) {
    const std::size_t end = candidates_.size();
    const std::uint32_t winner = nearest(node.sums.mean(), first, end);
    for (std::size_t place = first; place < end; ++place) {
      const std::uint32_t candidate = candidates_[place];
      if (candidate == winner || !isBeaten(centers_[candidate], centers_[winner], node)) {
        candidates_.push_back(candidate);
      }
    }
    if (candidates_.size() == end + 1) {
      sums_[winner].add(node.sums);
    } else if (node.children != 0) {
      assign(tree_->nodes()[node.children], end);
      assign(tree_->nodes()[node.children + 1], end);
    } else {
      for (const WeightedColor& color : tree_->colorsOf(node)) {
        sums_[nearest(color.color, end, candidates_.size())].add(color);
      }
    }
    candidates_.resize(end);
  }

  [[nodiscard]] std::uint32_t nearest(const Channels<float>& color, std::size_t first, std::size_t end) const {
    std::uint32_t winner = 0;
    float least = std::numeric_limits<float>::max();
    for (std::size_t place = first; place < end; ++place) {
      const float distance = squaredDistance(color, centers_[candidates_[place]]);
      winner = distance < least ? candidates_[place] : winner;
      least = std::min(distance, least);
    }
    return winner;
  }

  const ColorTree* tree_;
  std::vector<Channels<float>> centers_;
  // The sums over the colors that were nearest to each center in the last round.
  std::vector<ColorSums> sums_;
  // A stack of lists, one for each node on the way from the root.
  std::vector<std::uint32_t> candidates_;
};

}  // namespace

std::vector<Channels<float>> kMeans(const ColorTree& tree, std::vector<Channels<float>> centers) {
  Clusters best(tree, std::move(centers));
  double least = best.improve(kCoarseGain);
  for (std::size_t breath = std::max<std::size_t>(1, best.centers().size() / 8); breath > 0;) {
    Clusters other = best;
    other.add(breath);
    other.improve(kCoarseGain);
    other.remove(breath);
    const double error = other.improve(kCoarseGain);
    if (error < least * (1 - kCoarseGain)) {
      best = std::move(other);
      least = error;
    } else {
      breath /= 2;
    }
  }
  best.improve(kFineGain);
  return best.centers();
}

}  // namespace quillhue
