#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "core/palette.h"
#include "formats/work_image.h"
#include "remap/dither_options.h"
#include "remap/remapped_image.h"

namespace quillhue {

struct EightColors;
struct Lanes;
class NearestEntry;
class NearestTable;
class OklabEntries;

enum class RemapMode : std::uint8_t {
  /// An indexed image keeps its indexes.
  maintain,
  /// Each pixel gets the nearest color of the palette.
  nearest,
  /// The same, with error diffusion.
  dither,
  /// The same, with ordered dithering.
  ordered,
};

/// The space in which the distance between colors is Euclidean.
enum class ColorMatch : std::uint8_t { rgb, oklab };

/// Size of the cells, in pixels, whose right and lower borders errors do not cross.
struct ProtectGrid {
  static constexpr std::int32_t kMaxSide = 1000;

  std::int32_t width = 32;
  std::int32_t height = 32;
};

struct RemapOptions {
  RemapMode mode = RemapMode::nearest;
  /// Both kinds of dithering leave pixels that have exactly the color of this entry unchanged. An index past the colors
  /// in use protects nothing.
  std::optional<std::int32_t> protectedEntry;
  /// Sides are clamped to 1 .. ProtectGrid::kMaxSide.
  std::optional<ProtectGrid> protectGrid;
  /// Error diffusion skips transparent pixels: they get any index, and no error passes through them.
  bool skipsTransparent = false;
  DitherOptions dither{};
  /// Decides which entry is the nearest. Error diffusion adds up errors in red, green and blue in any case; when it
  /// matches by Oklab, it calculates in floats even if it is plain.
  ColorMatch match = ColorMatch::rgb;
};

/// Receives the progress of a run after rows 0, 16, 32 and so on. Runs that only look up the indexes of an indexed
/// image report nothing.
class RemapProgress {
 public:
  virtual ~RemapProgress() = default;

  /// The first `rows` rows of `result` are done. Returning false stops the run.
  [[nodiscard]] virtual bool rowsDone(std::int32_t rows, const RemappedImage& result) = 0;
};

/// Remaps images onto a copy of the first kMaxUsedEntries entries of a palette. The tables that it builds serve all its
/// images; the mode of the first image decides how large they may become.
///
/// Distances are squared Euclidean distances, unless told otherwise of red, green and blue; of equally near entries the
/// first one is used.
/// Arithmetic is 32-bit two's complement. Plain error diffusion never clamps errors: if the palette is far from the
/// image's colors, they grow until they wrap.
class Remapper {
 public:
  explicit Remapper(const Palette& palette);
  ~Remapper();
  Remapper(const Remapper&) = delete;
  Remapper& operator=(const Remapper&) = delete;

  /// Makes `result` from `image`. In the mode maintain, an image without a palette becomes all 0. Returns false if
  /// `progress` stopped the run; `result` then contains the rows done so far. Throws std::bad_alloc.
  bool remap(const WorkImage& image, const RemapOptions& options, RemappedImage& result, RemapProgress& progress);

 private:
  NearestEntry& nearest(RemapMode mode);
  OklabEntries& oklab();
  std::function<Lanes(const EightColors& targets)> finder(const RemapOptions& options);
  bool takeNearest(const WorkImage& image, RemappedImage& result, RemapProgress& progress);
  bool dither(const WorkImage& image, const RemapOptions& options, RemappedImage& result, RemapProgress& progress);
  bool ditherPlainly(const WorkImage& image, const RemapOptions& options, RemappedImage& result,
                     RemapProgress& progress);

  std::vector<PaletteEntry> colors_;
  std::unique_ptr<NearestEntry> nearest_;
  std::unique_ptr<NearestTable> table_;
  std::unique_ptr<OklabEntries> oklab_;
};

/// Remaps one image: Remapper(palette).remap(image, options, result, progress).
bool remapImage(const WorkImage& image, const Palette& palette, const RemapOptions& options, RemappedImage& result,
                RemapProgress& progress);

}  // namespace quillhue
