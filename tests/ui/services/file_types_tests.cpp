#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/utf8.h"
#include "ui/services/file_types.h"

namespace quillhue {
namespace {

// The list that the system gets, with a bar for each null.
std::string shown(const std::vector<FileType>& types) {
  std::string filter = toUtf8(filterOf(types));
  for (char& letter : filter) {
    letter = letter == '\0' ? '|' : letter;
  }
  return filter;
}

// The string's own end is the null behind the last type.
TEST(FileTypes, AreListedForEachDialog) {
  EXPECT_EQ(shown(openPaletteTypes()),
            "All Supported File Types|*.aco;*.act;*.anm;*.ase;*.bmp;*.clp;*.cmp;*.col;*.csv;*.dib;*.gif;*.gpl;*.hex;"
            "*.iff;*.lbm;*.map;*.pal;*.pcx;*.png;*.tga;*.tif;*.tiff;*.txt;*.xcf|All Files|*|");
  EXPECT_EQ(
      shown(openImageTypes()),
      "Supported File Types|*.bmp;*.clp;*.dib;*.lbm;*.pcx|"
      "Other images|*.gif;*.heic;*.ico;*.jpeg;*.jpg;*.jxr;*.pam;*.pbm;*.pgm;*.png;*.pnm;*.ppm;*.tif;*.tiff;*.webp|"
      "All Files|*|");
  EXPECT_EQ(shown(savePaletteTypes()),
            "Adobe Color Table (*.act)|*.act|CMP Palette (*.cmp)|*.cmp|Color Table (*.pal)|*.pal|"
            "Comma-separated values (*.csv)|*.csv|Dr. Halo Palette (*.pal)|*.pal|Gimp Palette|*|"
            "JASC Palette (*.pal)|*.pal|MAP Palette (*.map)|*.map|MS Draw Palette (*.pal)|*.pal|"
            "RIFF Palette (*.pal)|*.pal|Windows Clipboard File (*.clp)|*.clp|");
  EXPECT_EQ(shown(saveResultTypes()), "Windows Bitmap (*.bmp)|*.bmp|PNG (*.png)|*.png|All Files|*|");
}

}  // namespace
}  // namespace quillhue
