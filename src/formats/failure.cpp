#include "formats/failure.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quillhue {

namespace {

using enum Failure;

struct FailureText {
  Failure failure;
  std::string_view text;
};

// In the order of the enumeration.
constexpr std::array kTexts{
    FailureText{couldNotOpen, "Could not open the file."},
    FailureText{unrecognisedType, "Quillhue could not recognise this file type."},
    FailureText{jascInvalid, "This is not a valid JASC palette file."},
    FailureText{xcfNotIndexed, "This XCF file does not contain a palette."},
    FailureText{xcfNoColorMap, "Could not find a palette in this XCF file."},
    FailureText{xcfInvalidCount, "The palette in this XCF file is invalid."},
    FailureText{riffTooLarge, "This RIFF palette file is too large."},
    FailureText{cmpTooLarge, "This CMP palette is too large."},
    FailureText{bitmapUnsupported, "This Windows Bitmap file has an unsupported format."},
    FailureText{imageTooSmall, "The image is too small."},
    FailureText{imageTooLarge, "The image is too large."},
    FailureText{notEnoughMemory, "There is not enough free memory to load this image."},
    FailureText{gifNoGlobalPalette, "This GIF file does not contain a global palette."},
    FailureText{clipboardNoPalette, "This Windows Clipboard file has no recognisable palette."},
    FailureText{pngNotIndexed, "This PNG file does not use a palette."},
    FailureText{pngNoPaletteChunk, "This PNG file does not have a palette chunk."},
    FailureText{pngPaletteTooSmall, "This PNG file's palette chunk is too small."},
    FailureText{lbmPaletteTooLarge, "The palette in this LBM file is too large."},
    FailureText{pcxUnrecognised, "This PCX file was not recognised as one with a palette."},
    FailureText{tiffCorrupt, "This TIFF file is corrupt or does not contain a palette."},
    FailureText{aaProInvalid, "This is not a valid AA Pro palette file."},
    FailureText{aaProTooLarge, "This AA Pro palette file is too large."},
    FailureText{tgaNot8Bit, "This is not an 8-bit TGA file."},
    FailureText{actTooSmall, "This Adobe Color Table file is too small."},
    FailureText{rawPalTooSmall, "This palette file is too small."},
    FailureText{rawPalTooLarge, "This palette file is too large."},
    FailureText{rawColTooSmall, "This AA palette file is too small."},
    FailureText{rawColTooLarge, "This AA palette file is too large."},
    FailureText{gimpInvalid, "This is not a valid GIMP palette file."},
    FailureText{riffInvalid, "This is not a valid RIFF palette file."},
    FailureText{csvInvalid, "This is not a valid list of colors as comma-separated values."},
    FailureText{hexInvalid, "This is not a valid list of hexadecimal colors."},
    FailureText{paintNetInvalid, "This is not a valid Paint.NET palette file."},
    FailureText{aseInvalid, "This is not a valid Swatch Exchange file."},
    FailureText{acoInvalid, "This is not a valid Photoshop swatches file."},
    FailureText{swatchModelUnsupported, "This file has a swatch in a color model that is not supported."},
    FailureText{mightHoldMore,
                "This file might contain additional information which would be removed.\n"
                "Choose \"Save as...\" to overwrite or to select a different file."},
    FailureText{tooLargeForMsDraw, "The palette is too large for the MS Draw format.\nUse another format instead."},
    FailureText{farTooLargeForMsDraw,
                "The palette is too large for the MS Draw format.\n"
                "Use the Gimp, RIFF, or Windows Clipboard format instead."},
    FailureText{tooLargeForFormat,
                "The palette is too large for the selected format.\n"
                "Use the Gimp, RIFF, or Windows Clipboard format instead."},
    FailureText{clipboardNoImages, "This Windows Clipboard file has no recognisable images."},
    FailureText{bitmapDepth,
                "Windows Bitmap and Clipboard files must contain a 4-bit, 8-bit, 24-bit, or 32-bit bitmap."},
    FailureText{clipboardDepth, "Clipboard must contain a 4-bit, 8-bit, 24-bit, or 32-bit bitmap."},
    FailureText{pcxDepth, "PCX files must contain an 8-bit or 24-bit bitmap."},
    FailureText{noMemoryToDeinterleave, "There is not enough free memory to de-interleave this image."},
    FailureText{lbmUnsupported, "Quillhue cannot load this type of LBM file."},
    FailureText{lbmNot8Bit, "LBM files must contain an 8-bit bitmap."},
    FailureText{couldNotCreate, "Could not create the file."},
    FailureText{pictureDamaged, "This image file is damaged or incomplete."},
    FailureText{pictureUnsupported, "Quillhue cannot load this type of image."},
};

static_assert(kTexts.size() == static_cast<std::size_t>(pictureUnsupported) + 1);
static_assert(std::ranges::adjacent_find(kTexts, std::ranges::greater_equal(), &FailureText::failure) == kTexts.end());

}  // namespace

std::string_view textOf(Failure failure) { return kTexts[static_cast<std::size_t>(failure)].text; }

}  // namespace quillhue
