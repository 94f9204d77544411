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

/// Image sizes of 12.6, 0.79 and 0.003 megapixels.
inline constexpr ImageSize kLarge{4096, 3072};
inline constexpr ImageSize kMedium{1024, 768};
inline constexpr ImageSize kSmall{64, 48};

/// Returns the size as text, for example "64x48".
[[nodiscard]] std::string nameOf(ImageSize size);

/// A landscape, always the same: a sky in a smooth gradient with soft clouds, two ranges of hills with sharp outlines,
/// a meadow of fine texture with shaded balls of strong colors in it, and the mild noise of a camera. Its features grow
/// with the image. At 12.6 megapixels it has about 300,000 different colors, and about one pixel in 260 equals its left
/// neighbor. Each size is made once.
[[nodiscard]] const WorkImage& photoLikeImage(ImageSize size);

/// Gradients without noise. Neighboring pixels differ by little.
[[nodiscard]] const WorkImage& smoothImage(ImageSize size);

/// A game screen in 48 colors, some fully saturated: tiles of 32 x 32 pixels that are flat, bricks or sprites.
[[nodiscard]] const WorkImage& pixelArtImage(ImageSize size);

/// Noise: every color is equally likely, and the pixels are independent.
[[nodiscard]] const WorkImage& noiseImage(ImageSize size);

/// A Windows Bitmap of 24 bits a pixel.
[[nodiscard]] std::vector<std::uint8_t> bitmapOf(const WorkImage& image);

/// The photo-like image's bitmap as a scratch file.
[[nodiscard]] std::wstring bitmapFileOf(ImageSize size);

/// Returns the name of a file in the temporary folder, which the first call makes. Throws if it can't be written.
[[nodiscard]] std::wstring scratchFile(const std::string& name,
                                       const std::function<std::vector<std::uint8_t>()>& content);

}  // namespace quillhue::bench
