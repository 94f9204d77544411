#include "remap/remap.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "remap/dither_input.h"
#include "remap/error_diffusion.h"
#include "remap/kernel_diffusion.h"
#include "remap/nearest_entry.h"
#include "remap/nearest_table.h"
#include "remap/oklab_entries.h"
#include "remap/ordered_dithering.h"

namespace quillhue {

namespace {

constexpr std::int32_t kRowsBetweenReports = 16;

// The least number of pixels for which a table of all colors is worth its memory.
constexpr std::int64_t kPixelsForTable = 1 << 20;

// The memory for lists of candidates. Without dithering all targets are colors of pixels, which need fewer lists.
constexpr std::size_t listBytesFor(RemapMode mode) {
  return mode == RemapMode::nearest ? std::size_t{6} << 17 : std::size_t{10} << 17;
}

// A table for every index that a pixel can have.
using IndexTable = std::array<std::uint8_t, 256>;

// Kept on purpose: an index equal to the number of colors stays, although it is one past the last.
IndexTable maintainedIndexes(std::size_t colors) {
  IndexTable table{};
  for (std::size_t index = 0; index < table.size(); ++index) {
    table[index] = static_cast<std::uint8_t>(index <= colors ? index : 0);
  }
  return table;
}

IndexTable nearestIndexes(const Palette& imagePalette, const FindEntries& find) {
  IndexTable table{};
  for (std::int32_t index = 0; index < imagePalette.getSize(); ++index) {
    const auto pixel = static_cast<std::int32_t>(pixelOf(imagePalette.entry(index)));
    table[static_cast<std::size_t>(index)] =
        static_cast<std::uint8_t>(lowHalfOf<0>(find(colorsOfPixels(Lanes::all(pixel)))));
  }
  return table;
}

void mapIndexes(const WorkImage& image, const IndexTable& table, RemappedImage& result) {
  for (std::int32_t y = 0; y < image.height(); ++y) {
    std::ranges::transform(image.row(y), result.row(y).begin(), [&](std::uint8_t index) { return table[index]; });
  }
}

bool isReportDue(std::int32_t y) { return y % kRowsBetweenReports == 0; }

// Calls `remapRow(y)` for each row, until the progress stops the run.
template <typename RemapRow>
bool forEachRow(const RemappedImage& result, RemapProgress& progress, RemapRow remapRow) {
  for (std::int32_t y = 0; y < result.height(); ++y) {
    remapRow(y);
    if (isReportDue(y) && !progress.rowsDone(y + 1, result)) {
      return false;
    }
  }
  return true;
}

// Searches for eight pixels at once, except for pixels like the one before or like the last eight.
void nearestRow(NearestEntry& nearest, std::span<const std::uint8_t> pixels, std::span<std::uint8_t> indexes) {
  const auto pixelAt = [pixels](std::size_t x) {
    return pixels[3 * x] | std::int32_t{pixels[3 * x + 1]} << 8 | std::int32_t{pixels[3 * x + 2]} << 16;
  };
  Lanes eight = Lanes::all(-1);
  EightNumbers found{};
  for (std::size_t x = 0; x < indexes.size();) {
    const std::int32_t pixel = pixelAt(x);
    if (const unsigned same = signsOf(eight == Lanes::all(pixel)); same != 0) {
      const auto index = static_cast<std::uint8_t>(found[static_cast<std::size_t>(std::countr_zero(same))]);
      do {
        indexes[x++] = index;
      } while (x < indexes.size() && pixelAt(x) == pixel);
      continue;
    }
    const std::size_t count = std::min(Lanes::kCount, indexes.size() - x);
    eight = lanesBy([&](std::size_t lane) { return pixelAt(x + std::min(lane, count - 1)); });
    found = numbersOf(nearest.find(colorsOfPixels(eight)));
    for (std::size_t lane = 0; lane < count; ++lane, ++x) {
      indexes[x] = static_cast<std::uint8_t>(found[lane]);
    }
  }
}

std::optional<ErrorDiffusion::Limits> limitsOf(const RemapOptions& options, const WorkImage& image,
                                               std::size_t colors) {
  ErrorDiffusion::Limits limits{{}, image.width(), image.height(), options.skipsTransparent};
  if (options.protectGrid) {
    limits.gridWidth = std::clamp(options.protectGrid->width, 1, ProtectGrid::kMaxSide);
    limits.gridHeight = std::clamp(options.protectGrid->height, 1, ProtectGrid::kMaxSide);
  }
  const std::int32_t entry = options.protectedEntry.value_or(-1);
  if (entry >= 0 && entry < static_cast<std::int32_t>(colors)) {
    limits.protectedEntry = static_cast<std::uint8_t>(entry);
  }
  if (!options.protectGrid && !limits.protectedEntry && !options.skipsTransparent) {
    return {};
  }
  return limits;
}

}  // namespace

Remapper::Remapper(const Palette& palette) : colors_(entriesOf(palette)) {
  colors_.resize(std::min(colors_.size(), std::size_t{kMaxUsedEntries}));
}

Remapper::~Remapper() = default;

NearestEntry& Remapper::nearest(RemapMode mode) {
  if (!nearest_) {
    nearest_ = std::make_unique<NearestEntry>(colors_, listBytesFor(mode));
  }
  return *nearest_;
}

OklabEntries& Remapper::oklab() {
  if (!oklab_) {
    oklab_ = std::make_unique<OklabEntries>(colors_);
  }
  return *oklab_;
}

FindEntries Remapper::finder(const RemapOptions& options) {
  if (options.match == ColorMatch::oklab) {
    return [&entries = oklab()](const EightColors& targets) { return entries.find(targets); };
  }
  return [&entries = nearest(options.mode)](const EightColors& targets) { return entries.find(targets); };
}

bool Remapper::remap(const WorkImage& image, const RemapOptions& options, RemappedImage& result,
                     RemapProgress& progress) {
  result.prepare(image.width(), image.height(), colors_);
  const auto& imagePalette = image.palette();
  switch (options.mode) {
    case RemapMode::maintain:
      if (imagePalette) {
        mapIndexes(image, maintainedIndexes(colors_.size()), result);
      } else {
        result.clear();
      }
      return true;
    case RemapMode::nearest:
      if (imagePalette) {
        mapIndexes(image, nearestIndexes(*imagePalette, finder(options)), result);
        return true;
      }
      if (options.match == ColorMatch::oklab) {
        return forEachRow(result, progress, [&](std::int32_t y) { oklab().remapRow(image.row(y), result.row(y)); });
      }
      return takeNearest(image, result, progress);
    case RemapMode::dither:
    case RemapMode::ordered:
      return dither(image, options, result, progress);
  }
  return true;
}

bool Remapper::takeNearest(const WorkImage& image, RemappedImage& result, RemapProgress& progress) {
  const auto pixels = static_cast<std::int64_t>(image.width()) * image.height();
  if (!table_ && pixels >= kPixelsForTable) {
    table_ = std::make_unique<NearestTable>(colors_);
  }
  return forEachRow(result, progress, [&](std::int32_t y) {
    if (table_ && !table_->paysOff()) {
      table_.reset();
    }
    if (table_) {
      table_->remapRow(image.row(y), result.row(y));
    } else {
      nearestRow(nearest(RemapMode::nearest), image.row(y), result.row(y));
    }
  });
}

bool Remapper::dither(const WorkImage& image, const RemapOptions& options, RemappedImage& result,
                      RemapProgress& progress) {
  if (options.mode == RemapMode::dither && options.dither.isPlainDiffusion() && options.match == ColorMatch::rgb) {
    return ditherPlainly(image, options, result, progress);
  }
  const ErrorDiffusion::Limits none{{}, image.width(), image.height()};
  const DitherInput input{image, colors_, finder(options), limitsOf(options, image, colors_.size()).value_or(none)};
  const auto run = [&](auto dithering) {
    return forEachRow(result, progress, [&](std::int32_t y) { dithering.remapRow(y); });
  };
  return options.mode == RemapMode::ordered ? run(OrderedDithering(input, options.dither, result))
                                            : run(KernelDiffusion(input, options.dither, result));
}

// The first row is reported alone. After it the rows that run together end where a report is due.
bool Remapper::ditherPlainly(const WorkImage& image, const RemapOptions& options, RemappedImage& result,
                             RemapProgress& progress) {
  static_assert(kRowsBetweenReports % ErrorDiffusion::kRowsTogether == 0);
  const auto diffusion = diffuseErrors(image, nearest(options.mode), limitsOf(options, image, colors_.size()), result);
  for (std::int32_t done = 0; done < image.height();) {
    const std::int32_t count = done == 0 ? 1 : std::min(ErrorDiffusion::kRowsTogether, image.height() - done);
    diffusion->remapRows(count);
    done += count;
    if (isReportDue(done - 1) && !progress.rowsDone(done, result)) {
      return false;
    }
  }
  return true;
}

bool remapImage(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                RemapProgress& progress) {
  return Remapper(palette).remap(image, options, result, progress);
}

}  // namespace quillhue
