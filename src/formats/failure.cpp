#include "formats/failure.h"

namespace quillhue {

std::string_view textOf(Failure failure) {
  switch (failure) {
    using enum Failure;
    case couldNotOpen:
      return "Could not open the file.";
    case unrecognisedType:
      return "Quillhue could not recognise this file type.";
    case jascInvalid:
      return "This is not a valid JASC palette file.";
    case xcfNotIndexed:
      return "This XCF file does not contain a palette.";
    case xcfNoColorMap:
      return "Could not find a palette in this XCF file.";
    case xcfInvalidCount:
      return "The palette in this XCF file is invalid.";
    case riffTooLarge:
      return "This RIFF palette file is too large.";
    case cmpTooLarge:
      return "This CMP palette is too large.";
    case bitmapUnsupported:
      return "This Windows Bitmap file has an unsupported format.";
    case imageTooSmall:
      return "The image is too small.";
    case imageTooLarge:
      return "The image is too large.";
    case notEnoughMemory:
      return "There is not enough free memory to load this image.";
    case gifNoGlobalPalette:
      return "This GIF file does not contain a global palette.";
    case clipboardNoPalette:
      return "This Windows Clipboard file has no recognisable palette.";
    case pngNotIndexed:
      return "This PNG file does not use a palette.";
    case pngNoPaletteChunk:
      return "This PNG file does not have a palette chunk.";
    case pngPaletteTooSmall:
      return "This PNG file's palette chunk is too small.";
    case lbmPaletteTooLarge:
      return "The palette in this LBM file is too large.";
    case pcxUnrecognised:
      return "This PCX file was not recognised as one with a palette.";
    case tiffCorrupt:
      return "This TIFF file is corrupt or does not contain a palette.";
    case aaProInvalid:
      return "This is not a valid AA Pro palette file.";
    case aaProTooLarge:
      return "This AA Pro palette file is too large.";
    case tgaNot8Bit:
      return "This is not an 8-bit TGA file.";
    case actTooSmall:
      return "This Adobe Color Table file is too small.";
    case rawPalTooSmall:
      return "This palette file is too small.";
    case rawPalTooLarge:
      return "This palette file is too large.";
    case rawColTooSmall:
      return "This AA palette file is too small.";
    case rawColTooLarge:
      return "This AA palette file is too large.";
    case mightHoldMore:
      return "This file might contain additional information which would be removed.\n"
             "Choose \"Save as...\" to overwrite or to select a different file.";
    case tooLargeForMsDraw:
      return "The palette is too large for the MS Draw format.\nUse another format instead.";
    case farTooLargeForMsDraw:
      return "The palette is too large for the MS Draw format.\n"
             "Use the Gimp, RIFF, or Windows Clipboard format instead.";
    case tooLargeForFormat:
      return "The palette is too large for the selected format.\n"
             "Use the Gimp, RIFF, or Windows Clipboard format instead.";
    case couldNotCreate:
      return "Could not create the file.";
  }
  return {};
}

}  // namespace quillhue
