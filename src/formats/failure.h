#pragma once

#include <cstdint>
#include <string_view>

namespace quillhue {

/// Reasons why a file can't be read or written.
enum class Failure : std::uint8_t {
  couldNotOpen,
  unrecognisedType,
  jascInvalid,
  xcfNotIndexed,
  xcfNoColorMap,
  xcfInvalidCount,
  riffTooLarge,
  cmpTooLarge,
  bitmapUnsupported,
  imageTooSmall,
  imageTooLarge,
  notEnoughMemory,
  gifNoGlobalPalette,
  clipboardNoPalette,
  pngNotIndexed,
  pngNoPaletteChunk,
  pngPaletteTooSmall,
  lbmPaletteTooLarge,
  pcxUnrecognised,
  tiffCorrupt,
  aaProInvalid,
  aaProTooLarge,
  tgaNot8Bit,
  actTooSmall,
  rawPalTooSmall,
  rawPalTooLarge,
  rawColTooSmall,
  rawColTooLarge,
  gimpInvalid,
  riffInvalid,
  csvInvalid,
  hexInvalid,
  paintNetInvalid,
  aseInvalid,
  acoInvalid,
  swatchModelUnsupported,
  mightHoldMore,
  tooLargeForMsDraw,
  farTooLargeForMsDraw,
  tooLargeForFormat,
  clipboardNoImages,
  bitmapDepth,
  clipboardDepth,
  pcxDepth,
  noMemoryToDeinterleave,
  lbmUnsupported,
  lbmNot8Bit,
  couldNotCreate,
  pictureDamaged,
  pictureUnsupported,
};

/// Returns the message for the user. Its lines end with a line feed.
[[nodiscard]] std::string_view textOf(Failure failure);

}  // namespace quillhue
