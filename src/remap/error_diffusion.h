#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "remap/nearest_entry.h"

namespace quillhue {

/// Floyd and Steinberg's error diffusion, from left to right in every row, with errors in sixteenths of a step.
class ErrorDiffusion {
 public:
  /// What keeps errors back. The grid's sides are at least 1.
  struct Limits {
    std::optional<std::uint8_t> protectedEntry;
    std::int32_t gridWidth;
    std::int32_t gridHeight;
  };

  ErrorDiffusion(const NearestEntry& nearest, std::int32_t width, const Limits& limits);

  /// Remaps the next row: `source` has three bytes a pixel, blue, green, red; `indexes` takes one.
  void remapRow(std::span<const std::uint8_t> source, std::span<std::uint8_t> indexes);

 private:
  void spread(std::int32_t x, const ColorVector& error);

  const NearestEntry& nearest_;
  Limits limits_;
  std::int32_t row_ = 0;
  // For each column what the row above left, and what this row leaves for the next.
  std::vector<ColorVector> above_;
  std::vector<ColorVector> below_;
};

}  // namespace quillhue
