#include "remap/remap.h"

#include <algorithm>
#include <array>
#include <vector>

#include "remap/error_diffusion.h"
#include "remap/nearest_entry.h"

namespace quillhue {

namespace {

constexpr std::int32_t kRowsBetweenReports = 16;

ColorVector vectorOf(const PaletteEntry& color) { return {color.blue, color.green, color.red}; }

// A table for every index that a pixel can have.
using IndexTable = std::array<std::uint8_t, 256>;

// kept on purpose: an index equal to the number of colors stays, although it is one past the last.
IndexTable maintainedIndexes(std::size_t colors) {
  IndexTable table{};
  for (std::size_t index = 0; index < table.size(); ++index) {
    table[index] = static_cast<std::uint8_t>(index <= colors ? index : 0);
  }
  return table;
}

IndexTable nearestIndexes(const Palette& imagePalette, const NearestEntry& nearest) {
  IndexTable table{};
  for (std::int32_t index = 0; index < imagePalette.getSize(); ++index) {
    table[static_cast<std::size_t>(index)] = nearest.find(vectorOf(imagePalette.entry(index)));
  }
  return table;
}

void mapIndexes(const WorkImage& image, const IndexTable& table, RemappedImage& result) {
  for (std::int32_t y = 0; y < image.height(); ++y) {
    std::ranges::transform(image.row(y), result.row(y).begin(), [&](std::uint8_t index) { return table[index]; });
  }
}

// The row's pixels as three bytes each, in `expanded` where the image has indexes.
std::span<const std::uint8_t> directRow(const WorkImage& image, std::int32_t y, std::vector<std::uint8_t>& expanded) {
  const auto row = image.row(y);
  const auto& palette = image.palette();
  if (!palette) {
    return row;
  }
  expanded.clear();
  for (const std::uint8_t index : row) {
    const PaletteEntry color = palette->entry(index);
    expanded.insert(expanded.end(), {color.blue, color.green, color.red});
  }
  return expanded;
}

// `remapRow` gets each row's pixels and its place in the result.
template <typename RemapRow>
bool forEachRow(const WorkImage& image, RemappedImage& result, RemapProgress& progress, RemapRow remapRow) {
  std::vector<std::uint8_t> expanded;
  for (std::int32_t y = 0; y < image.height(); ++y) {
    remapRow(directRow(image, y, expanded), result.row(y));
    if (y % kRowsBetweenReports == 0 && !progress.rowsDone(y + 1, result)) {
      return false;
    }
  }
  return true;
}

// Neighbors are often the same.
void nearestRow(const NearestEntry& nearest, std::span<const std::uint8_t> source, std::span<std::uint8_t> indexes) {
  ColorVector last{-1, -1, -1};
  std::uint8_t found = 0;
  for (std::size_t x = 0; x < indexes.size(); ++x) {
    const ColorVector pixel{source[3 * x], source[3 * x + 1], source[3 * x + 2]};
    if (pixel != last) {
      found = nearest.find(pixel);
      last = pixel;
    }
    indexes[x] = found;
  }
}

ErrorDiffusion::Limits limitsOf(const RemapOptions& options, const WorkImage& image, std::size_t colors) {
  ErrorDiffusion::Limits limits{{}, image.width(), image.height()};
  if (options.protectGrid) {
    limits.gridWidth = std::clamp(options.protectGrid->width, 1, ProtectGrid::kMaxSide);
    limits.gridHeight = std::clamp(options.protectGrid->height, 1, ProtectGrid::kMaxSide);
  }
  const std::int32_t entry = options.protectedEntry.value_or(-1);
  if (entry >= 0 && entry < static_cast<std::int32_t>(colors)) {
    limits.protectedEntry = static_cast<std::uint8_t>(entry);
  }
  return limits;
}

}  // namespace

void RemappedImage::prepare(std::int32_t width, std::int32_t height, const Palette& palette) {
  if (width != width_ || height != height_) {
    // The old rows go first, so that both need not fit into the memory.
    rows_ = ZeroedBytes();
    width_ = 0;
    height_ = 0;
    rows_ = ZeroedBytes(paddedRowLength(width) * static_cast<std::size_t>(height));
    width_ = width;
    height_ = height;
  }
  colors_ = entriesOf(palette);
  colors_.resize(std::min(colors_.size(), std::size_t{kMaxUsedEntries}));
}

void RemappedImage::clear() { std::ranges::fill(rows_.bytes(), std::uint8_t{0}); }

bool remapImage(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                RemapProgress& progress) {
  result.prepare(image.width(), image.height(), palette);
  const NearestEntry nearest(result.colors());
  const auto& imagePalette = image.palette();
  switch (options.mode) {
    case RemapMode::maintain:
      if (imagePalette) {
        mapIndexes(image, maintainedIndexes(result.colors().size()), result);
      } else {
        result.clear();
      }
      return true;
    case RemapMode::nearest:
      if (imagePalette) {
        mapIndexes(image, nearestIndexes(*imagePalette, nearest), result);
        return true;
      }
      return forEachRow(image, result, progress,
                        [&](auto source, auto indexes) { nearestRow(nearest, source, indexes); });
    case RemapMode::dither: {
      ErrorDiffusion diffusion(nearest, image.width(), limitsOf(options, image, result.colors().size()));
      return forEachRow(image, result, progress,
                        [&](auto source, auto indexes) { diffusion.remapRow(source, indexes); });
    }
  }
  return true;
}

}  // namespace quillhue
