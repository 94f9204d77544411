#pragma once

#include <bitset>
#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/palette.h"
#include "formats/failure.h"
#include "remap/remapped_image.h"

namespace quillhue::cli {

/// A remapped image to be written.
struct ImageOutput {
  const RemappedImage& image;
  /// The whole palette; the image uses its first entries.
  const Palette& palette;
  /// Transparent entries. Formats without transparency ignore them.
  std::bitset<256> transparent;
  /// Color of the format's entries past the palette's end.
  PaletteEntry blank;
};

/// A format of remapped images.
struct ImageFormat {
  /// Name for --format, and the usual extension.
  std::string_view name;
  /// File name endings in upper case.
  std::vector<std::string_view> endings;
  bool hasTransparency;
  std::expected<std::vector<std::uint8_t>, Failure> (*compose)(const ImageOutput& output);
};

[[nodiscard]] std::span<const ImageFormat> imageFormats();
/// The choices of --format in verbs that write images, and its help.
[[nodiscard]] std::vector<std::string> imageFormatNames();
inline constexpr const char* kImageFormatHelp = "Format to write (default: by the extension, or bmp)";

/// Returns the format with the name `format`. If that is empty, the extension of `file` decides; for standard output
/// ("-") and for a folder (an empty name) the format is Windows Bitmap. Other extensions are a usage error.
[[nodiscard]] const ImageFormat& chooseImageFormat(const std::string& format, const std::string& file);

}  // namespace quillhue::cli
