#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "core/palette.h"
#include "formats/work_image.h"
#include "remap/remapped_image.h"

namespace quillhue {

class NearestEntry;
class NearestTable;

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
  /// In error diffusion transparent pixels get any index, and neither take nor leave errors.
  bool skipsTransparent = false;
};

/// Hears how far a run is, after rows 0, 16, 32 and so on of an image of direct colors or one that is dithered.
class RemapProgress {
 public:
  virtual ~RemapProgress() = default;

  /// The first `rows` rows of `result` are done. False stops the run.
  [[nodiscard]] virtual bool rowsDone(std::int32_t rows, const RemappedImage& result) = 0;
};

/// Remaps images onto a palette's first kMaxUsedEntries entries, of which it takes a copy. What it learns about their
/// places in the color space serves all its images; how much room that gets is up to the mode of the first one.
///
/// Distances are squared Euclidean distances of red, green and blue; of equally near entries the first one counts.
/// Arithmetic is 32-bit two's complement: errors are never clamped, and with a palette that is far from the image's
/// colors they grow until they wrap.
class Remapper {
 public:
  explicit Remapper(const Palette& palette);
  ~Remapper();
  Remapper(const Remapper&) = delete;
  Remapper& operator=(const Remapper&) = delete;

  /// Makes `result` from `image`. An image of direct colors has no indexes to maintain and becomes all 0. False when
  /// `progress` stopped the run, which leaves the rows done so far in `result`. Throws std::bad_alloc.
  bool remap(const WorkImage& image, const RemapOptions& options, RemappedImage& result, RemapProgress& progress);

 private:
  NearestEntry& nearest(RemapMode mode);
  bool takeNearest(const WorkImage& image, RemappedImage& result, RemapProgress& progress);
  bool dither(const WorkImage& image, const RemapOptions& options, RemappedImage& result, RemapProgress& progress);

  std::vector<PaletteEntry> colors_;
  std::unique_ptr<NearestEntry> nearest_;
  std::unique_ptr<NearestTable> table_;
};

/// Remaps one image: Remapper(palette).remap(image, options, result, progress).
bool remapImage(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                RemapProgress& progress);

}  // namespace quillhue
