#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <new>
#include <string_view>

#include "formats/byte_source.h"
#include "formats/failure.h"
#include "formats/work_image.h"

namespace quillhue {

using ImageResult = std::expected<WorkImage, Failure>;

/// Loading an image takes this much memory at most, apart from its pixels.
inline constexpr std::size_t kMaxLoaderMemory = std::size_t{2} << 20;
/// Pixels take up to 3 * kMaxImagePixels bytes of address space, whatever the size of the file. They take memory only
/// where the file has pixels: at most this many bytes for each byte of the file, and one row more.
inline constexpr std::uint64_t kMaxPixelBytesPerFileByte = 64;

/// A layout of image files.
struct ImageLoader {
  /// Identifier for scripts.
  std::string_view name;
  /// File name patterns of the Open dialog.
  std::string_view patterns;
  /// True when the first four bytes are those of this layout. The first loader in the catalogue that matches is used.
  bool (*matches)(ByteSource& source);
  /// Loads a file that matches. Pixels missing from the file are zero.
  ImageResult (*load)(ByteSource& source);
};

/// Returns what `load` loads from the source, or the failure that can happen in any format: couldNotOpen when the
/// medium failed, notEnoughMemory when `load` throws std::bad_alloc.
template <typename Load>
[[nodiscard]] ImageResult guardedLoad(ByteSource& source, Load load) try {
  ImageResult image = load();
  if (source.failed()) {
    return std::unexpected(Failure::couldNotOpen);
  }
  return image;
} catch (const std::bad_alloc&) {
  return std::unexpected(Failure::notEnoughMemory);
}

}  // namespace quillhue
