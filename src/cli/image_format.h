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

/// A remapped image that is to be written.
struct ImageOutput {
  const RemappedImage& image;
  /// The whole palette, of which the image has the first entries.
  const Palette& palette;
  /// Transparent entries, in formats that have any.
  std::bitset<256> transparent;
  /// Of entries that the format has and the palette has not.
  PaletteEntry blank;
};

/// A format in which remapped images are written.
struct ImageFormat {
  /// For --format; also the usual extension.
  std::string_view name;
  /// Endings of file names in upper case.
  std::vector<std::string_view> endings;
  bool hasTransparency;
  std::expected<std::vector<std::uint8_t>, Failure> (*compose)(const ImageOutput& output);
};

[[nodiscard]] std::span<const ImageFormat> imageFormats();
/// The choices of --format in verbs that write images, and its help.
[[nodiscard]] std::vector<std::string> imageFormatNames();
inline constexpr const char* kImageFormatHelp = "The format to write (default: that of OUT's extension, otherwise bmp)";

/// The format with the name `format`, or if that is empty the one that the extension of `file` stands for; for standard
/// output and for a folder, of which the name is empty, Windows Bitmap. Refuses the usage for any other extension.
[[nodiscard]] const ImageFormat& chooseImageFormat(const std::string& format, const std::string& file);

}  // namespace quillhue::cli
