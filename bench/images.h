#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "formats/work_image.h"

namespace quillhue::bench {

struct ImageSize {
  std::int32_t width;
  std::int32_t height;
};

/// 12.6, 0.79 and 0.003 megapixels.
inline constexpr ImageSize kLarge{4096, 3072};
inline constexpr ImageSize kMedium{1024, 768};
inline constexpr ImageSize kSmall{64, 48};

/// As in 64x48.
[[nodiscard]] std::string nameOf(ImageSize size);

/// A landscape, always the same: a sky in a smooth gradient with soft clouds, two ranges of hills with sharp outlines,
/// a meadow of fine texture with shaded balls of strong colors in it, and over all of it the mild noise of a camera.
/// Its features grow with the image. 12.6 megapixels have some 300,000 different colors, and one pixel in some
/// 260 is the same as its left neighbor. Each size is made once.
[[nodiscard]] const WorkImage& photoLikeImage(ImageSize size);

/// Gradients without noise. Neighboring pixels differ by little.
[[nodiscard]] const WorkImage& smoothImage(ImageSize size);

/// A game screen in 48 colors, some fully saturated: tiles of 32 x 32 pixels that are flat, bricks or sprites.
[[nodiscard]] const WorkImage& pixelArtImage(ImageSize size);

/// Every color as likely as every other, and no pixel related to another.
[[nodiscard]] const WorkImage& noiseImage(ImageSize size);

/// A Windows Bitmap of 24 bits a pixel.
[[nodiscard]] std::vector<std::uint8_t> bitmapOf(const WorkImage& image);

/// The photo-like image's bitmap as a scratch file.
[[nodiscard]] std::wstring bitmapFileOf(ImageSize size);

/// A file of the temporary folder, made when it is asked for first. Throws when it cannot be written.
[[nodiscard]] std::wstring scratchFile(const std::string& name,
                                       const std::function<std::vector<std::uint8_t>()>& content);

}  // namespace quillhue::bench
