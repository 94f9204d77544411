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

/// A format of image files whose pixels can be decoded.
struct PictureKind {
  /// Identifier for scripts.
  std::string_view name;
  /// Title for users.
  std::string_view title;
  /// Describes the signature.
  std::string_view recognisedBy;
  /// File name patterns for a dialog, separated by semicolons.
  std::string_view patterns;
  /// True when the first bytes of a file are those of this format. `start` contains at least kSignatureSize bytes, or
  /// the whole file if it is shorter.
  bool (*matches)(PictureBytes start);
  /// Decodes a whole file that matches. If the file has indexes, the image has a palette of 256 entries; entries that
  /// the file lacks are black. All other samples become bytes of blue, green and red. A pixel whose coverage (alpha) is
  /// less than one half is transparent, and its color is blended with `blank` according to the coverage. All other
  /// pixels become opaque. Gamma and color profiles are ignored.
  ///
  /// Refuses an image size outside image_limits.h with imageTooSmall or imageTooLarge, before it allocates memory for
  /// the image. Refuses a truncated or invalid file with pictureDamaged, and unsupported variants of the format with
  /// pictureUnsupported. Throws std::bad_alloc.
  PictureResult (*decode)(PictureBytes file, PaletteEntry blank);
};

/// W3C Recommendation "Portable Network Graphics": all color types and depths, interlaced or not.
extern const PictureKind kPngPicture;
/// ITU-T T.81: sequential and progressive Huffman coding, 8 bits a sample; gray, YCbCr, RGB, CMYK and YCCK. Damaged
/// data between the headers is decoded as far as the system's decoder can. The system's decoder also does the rounding,
/// so colors may differ slightly between systems.
extern const PictureKind kJpegPicture;
/// The first image of a PBM, PGM, PPM or PAM file, as described in the manual pages of those formats.
extern const PictureKind kPnmPicture;

inline constexpr std::size_t kSignatureSize = 8;

[[nodiscard]] std::span<const PictureKind* const> pictureKinds();

/// Returns the format of a file that starts with these bytes, or null.
[[nodiscard]] const PictureKind* findPictureKind(PictureBytes start);

}  // namespace quillhue
