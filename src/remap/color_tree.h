#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "remap/weighted_colors.h"

namespace quillhue {

/// Sums over weighted colors.
struct ColorSums {
  Channels<double> color{};
  Channels<double> squares{};
  double weight = 0;

  void add(const WeightedColor& other);
  void add(const ColorSums& other);
  void subtract(const ColorSums& other);

  [[nodiscard]] Channels<float> mean() const;
  /// Returns the mean squared distance to the mean in each channel; 0 without colors.
  [[nodiscard]] Channels<double> variances() const;
  /// Returns the sum of the squared distances to the mean; 0 without colors.
  [[nodiscard]] double spread() const;
};

/// Divides colors into boxes, and these into smaller ones. Each division leaves the least squared distance to the means
/// of both parts that any plane across an axis can leave. (X. Wu, "Efficient statistical computations for optimal color
/// quantization", Graphics Gems II, 1991, divides the color cube in the same way.)
class ColorTree {
 public:
  struct Node {
    /// The place of the first color and the number of colors.
    std::size_t first;
    std::size_t count;
    /// The bounds of the colors.
    Channels<float> low;
    Channels<float> high;
    ColorSums sums;
    /// The place of the first of two children, which are neighbors, or 0 for a leaf.
    std::size_t children = 0;
  };

  /// Takes at least one color.
  explicit ColorTree(std::vector<WeightedColor> colors);

  /// The root is the first.
  [[nodiscard]] std::span<const Node> nodes() const { return nodes_; }
  [[nodiscard]] std::span<const WeightedColor> colors() const { return colors_; }
  [[nodiscard]] std::span<const WeightedColor> colorsOf(const Node& node) const {
    return std::span(colors_).subspan(node.first, node.count);
  }

  /// Divides leaves, always that with the greatest spread, until there are `leaves` or no leaf has two colors. Returns
  /// their means.
  [[nodiscard]] std::vector<Channels<float>> divideInto(std::size_t leaves);
  /// Divides all leaves of more than `most` colors.
  void divideLeavesOver(std::size_t most);

 private:
  [[nodiscard]] Node nodeOf(std::size_t first, std::size_t count) const;
  void divide(std::size_t leaf);

  std::vector<WeightedColor> colors_;
  std::vector<Node> nodes_;
};

}  // namespace quillhue
