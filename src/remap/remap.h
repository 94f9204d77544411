#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/palette.h"
#include "core/zeroed_bytes.h"
#include "formats/work_image.h"

namespace quillhue {

/// The most entries of a palette that an image of one byte a pixel can use.
inline constexpr std::int32_t kMaxUsedEntries = 256;

enum class RemapMode : std::uint8_t {
  /// An indexed image keeps its indexes.
  maintain,
  /// Every color becomes the nearest of the palette.
  nearest,
  /// The same with error diffusion.
  dither,
};

/// Cells that errors do not leave to the right or downward, in pixels.
struct ProtectGrid {
  static constexpr std::int32_t kMaxSide = 1000;

  std::int32_t width = 32;
  std::int32_t height = 32;
};

struct RemapOptions {
  RemapMode mode = RemapMode::nearest;
  /// An entry whose exact color error diffusion keeps. One that no result can hold protects nothing.
  std::optional<std::int32_t> protectedEntry;
  /// Sides outside 1 .. ProtectGrid::kMaxSide count as the nearest ones inside.
  std::optional<ProtectGrid> protectGrid;
};

/// An image of one byte a pixel in the colors of a palette.
class RemappedImage {
 public:
  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }
  /// The palette's first kMaxUsedEntries entries as they were when the image was made.
  [[nodiscard]] const std::vector<PaletteEntry>& colors() const { return colors_; }

  /// Rows of indexes from top to bottom, each of the paddedRowLength with zeros behind the pixels.
  [[nodiscard]] std::span<const std::uint8_t> rows() const { return rows_.bytes(); }
  /// The pixels of a row, without its padding.
  [[nodiscard]] std::span<std::uint8_t> row(std::int32_t y) {
    return rows_.bytes().subspan(static_cast<std::size_t>(y) * paddedRowLength(width_),
                                 static_cast<std::size_t>(width_));
  }

  /// Becomes an image of this size and these colors. Its pixels stay as they are when the size does, and are zero
  /// otherwise. Throws std::bad_alloc.
  void prepare(std::int32_t width, std::int32_t height, const Palette& palette);
  /// Sets all pixels to 0.
  void clear();

 private:
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  ZeroedBytes rows_;
  std::vector<PaletteEntry> colors_;
};

/// Hears how far a run is, after rows 0, 16, 32 and so on of an image of direct colors or one that is dithered.
class RemapProgress {
 public:
  virtual ~RemapProgress() = default;

  /// The first `rows` rows of `result` are done. False stops the run.
  [[nodiscard]] virtual bool rowsDone(std::int32_t rows, const RemappedImage& result) = 0;
};

/// Remaps `image` onto the palette's first kMaxUsedEntries entries, of which a copy is taken at the start. An image
/// of direct colors has no indexes to maintain and becomes all 0. False when `progress` stopped the run, which leaves
/// the rows done so far in `result`. Throws std::bad_alloc.
///
/// Distances are squared Euclidean distances of red, green and blue; of equally near entries the first one counts.
/// Arithmetic is 32-bit two's complement: errors are never clamped, and with a palette that is far from the image's
/// colors they grow until they wrap.
bool remapImage(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                RemapProgress& progress);

}  // namespace quillhue
