#include "remap/color_tree.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <queue>
#include <utility>

namespace quillhue {

namespace {

// A plane across an axis: colors below the limit are on one side.
struct Plane {
  std::size_t channel = 0;
  std::size_t limit = 0;
  // The spread of both sides.
  double spread = std::numeric_limits<double>::max();
};

std::size_t binOf(float number) { return static_cast<std::size_t>(number); }

// Returns the best plane across one axis. Its limit is 0 if the colors have the same whole number there.
Plane bestPlane(const ColorTree::Node& node, std::span<const WeightedColor> colors, std::size_t channel) {
  std::array<ColorSums, 256> bins;
  const std::size_t first = binOf(node.low[channel]);
  const std::size_t last = binOf(node.high[channel]);
  std::fill(bins.begin() + static_cast<std::ptrdiff_t>(first), bins.begin() + static_cast<std::ptrdiff_t>(last) + 1,
            ColorSums());
  for (const WeightedColor& color : colors) {
    bins[binOf(color.color[channel])].add(color);
  }
  Plane best{channel};
  ColorSums below;
  ColorSums above = node.sums;
  for (std::size_t bin = first; bin < last; ++bin) {
    below.add(bins[bin]);
    above.subtract(bins[bin]);
    const double spread = below.spread() + above.spread();
    if (spread < best.spread) {
      best = {channel, bin + 1, spread};
    }
  }
  return best;
}

// Applies an operation to all sums.
template <typename Operation>
void combine(ColorSums& sums, const ColorSums& other, Operation operation) {
  std::ranges::transform(sums.color, other.color, sums.color.begin(), operation);
  std::ranges::transform(sums.squares, other.squares, sums.squares.begin(), operation);
  sums.weight = operation(sums.weight, other.weight);
}

}  // namespace

void ColorSums::add(const WeightedColor& other) {
  for (std::size_t channel = 0; channel < color.size(); ++channel) {
    const double number = other.color[channel];
    color[channel] += number * other.weight;
    squares[channel] += number * number * other.weight;
  }
  weight += other.weight;
}

void ColorSums::add(const ColorSums& other) { combine(*this, other, std::plus()); }

void ColorSums::subtract(const ColorSums& other) { combine(*this, other, std::minus()); }

Channels<float> ColorSums::mean() const {
  const auto channel = [&](std::size_t i) { return static_cast<float>(color[i] / weight); };
  return {channel(0), channel(1), channel(2)};
}

Channels<double> ColorSums::variances() const {
  Channels<double> variances{};
  for (std::size_t channel = 0; weight > 0 && channel < color.size(); ++channel) {
    const double average = color[channel] / weight;
    variances[channel] = std::max(0.0, squares[channel] / weight - average * average);
  }
  return variances;
}

double ColorSums::spread() const {
  const Channels<double> each = variances();
  return weight * (each[0] + each[1] + each[2]);
}

ColorTree::ColorTree(std::vector<WeightedColor> colors) : colors_(std::move(colors)) {
  nodes_.push_back(nodeOf(0, colors_.size()));
}

ColorTree::Node ColorTree::nodeOf(std::size_t first, std::size_t count) const {
  Node node{first, count, colors_[first].color, colors_[first].color, {}};
  for (const WeightedColor& color : std::span(colors_).subspan(first, count)) {
    node.sums.add(color);
    for (std::size_t channel = 0; channel < color.color.size(); ++channel) {
      const float number = color.color[channel];
      node.low[channel] = std::min(node.low[channel], number);
      node.high[channel] = std::max(node.high[channel], number);
    }
  }
  return node;
}

void ColorTree::divide(std::size_t leaf) {
  const Node node = nodes_[leaf];
  const auto colors = std::span(colors_).subspan(node.first, node.count);
  Plane best;
  for (std::size_t channel = 0; channel < node.low.size(); ++channel) {
    const Plane plane = bestPlane(node, colors, channel);
    best = plane.spread < best.spread ? plane : best;
  }
  const auto above = std::ranges::partition(
      colors, [&](const WeightedColor& color) { return binOf(color.color[best.channel]) < best.limit; });
  nodes_[leaf].children = nodes_.size();
  nodes_.push_back(nodeOf(node.first, node.count - above.size()));
  nodes_.push_back(nodeOf(node.first + node.count - above.size(), above.size()));
}

std::vector<Channels<float>> ColorTree::divideInto(std::size_t leaves) {
  std::priority_queue<std::pair<double, std::size_t>> largest;
  std::vector<std::size_t> single;
  const auto add = [&](std::size_t place) {
    if (nodes_[place].count > 1) {
      largest.emplace(nodes_[place].sums.spread(), place);
    } else {
      single.push_back(place);
    }
  };
  add(0);
  while (!largest.empty() && largest.size() + single.size() < leaves) {
    const std::size_t place = largest.top().second;
    largest.pop();
    divide(place);
    add(nodes_[place].children);
    add(nodes_[place].children + 1);
  }
  std::vector<Channels<float>> means;
  for (const Node& node : nodes_) {
    if (node.children == 0) {
      means.push_back(node.sums.mean());
    }
  }
  return means;
}

void ColorTree::divideLeavesOver(std::size_t most) {
  // Children are added at the end.
  for (std::size_t place = 0; place < nodes_.size(); ++place) {
    if (nodes_[place].children == 0 && nodes_[place].count > most) {
      divide(place);
    }
  }
}

}  // namespace quillhue
