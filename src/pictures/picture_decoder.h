#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string_view>

#include "core/palette_entry.h"
#include "formats/failure.h"
#include "formats/work_image.h"

namespace quillhue {

using PictureBytes = std::span<const std::uint8_t>;
using PictureResult = std::expected<WorkImage, Failure>;

/// One kind of image files that is decoded for its pixels.
struct PictureKind {
  /// For scripts.
  std::string_view name;
  /// For people.
  std::string_view title;
  /// The signature, in words.
  std::string_view recognisedBy;
  /// File name patterns of a dialog, with semicolons between them.
  std::string_view patterns;
  /// True when the first bytes of a file, at least kSignatureSize where it has as many, are of this kind.
  bool (*matches)(PictureBytes start);
  /// Decodes a whole file that matches. The image has a palette, of 256 entries with black for those that the file
  /// lacks, when the file has indexes. All other samples become bytes of blue, green and red. A pixel whose coverage
  /// (alpha) is less than a half is transparent; its color is blended with `blank` by its coverage. All others are as
  /// if they were covered completely. Gamma and color profiles do not count.
  ///
  /// Refuses a size outside image_limits.h, before memory is used for it, with imageTooSmall or imageTooLarge; a file
  /// that is cut short or not what it claims to be with pictureDamaged; other variants of the format with
  /// pictureUnsupported. Throws std::bad_alloc.
  PictureResult (*decode)(PictureBytes file, PaletteEntry blank);
};

/// W3C Recommendation "Portable Network Graphics": all types and depths, interlaced or not.
extern const PictureKind kPngPicture;
/// ITU-T T.81: sequential and progressive Huffman coding, 8 bits a sample; gray, YCbCr, RGB, CMYK and YCCK. What is
/// damaged between the headers is decoded as far as the system's decoder can. Its rounding is the system's, so colors
/// may differ between systems by some steps.
extern const PictureKind kJpegPicture;
/// The first image of a PBM, PGM, PPM or PAM file, as the manual pages of those formats describe them.
extern const PictureKind kPnmPicture;

inline constexpr std::size_t kSignatureSize = 8;

[[nodiscard]] std::span<const PictureKind* const> pictureKinds();

/// The kind of a file that begins like this; null when it is none of them.
[[nodiscard]] const PictureKind* findPictureKind(PictureBytes start);

}  // namespace quillhue
