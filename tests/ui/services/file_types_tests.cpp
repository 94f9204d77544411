#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "formats/images/image_loaders.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "pictures/picture_decoder.h"
#include "ui/services/file_types.h"

namespace quillhue {
namespace {

using Patterns = std::set<std::string>;

void add(Patterns& patterns, std::string_view list) {
  std::istringstream stream{std::string(list)};
  for (std::string pattern; std::getline(stream, pattern, ';');) {
    patterns.insert(pattern);
  }
}

// Returns all patterns of a catalogue and of a list, in alphabetical order.
std::string patternsOf(const auto& catalogue, std::string_view others = "") {
  Patterns patterns;
  add(patterns, others);
  for (const auto* const member : catalogue) {
    add(patterns, member->patterns);
  }
  std::string list;
  for (const std::string& pattern : patterns) {
    list += (list.empty() ? "" : ";") + pattern;
  }
  return list;
}

TEST(FileTypes, AreThoseOfTheCatalogues) {
  EXPECT_EQ(openPaletteTypes().at(0).patterns, patternsOf(paletteReaders()));
  EXPECT_EQ(openImageTypes().at(0).patterns, patternsOf(imageLoaders()));
  EXPECT_EQ(openImageTypes().at(1).patterns,
            patternsOf(pictureKinds(), "*.gif;*.heic;*.ico;*.jxr;*.tif;*.tiff;*.webp"));
  const auto saved = savePaletteTypes();
  for (const PaletteWriter* const writer : paletteWriters()) {
    EXPECT_EQ(saved.at(writer->format - 1).text, writer->fileType);
    EXPECT_EQ(saved.at(writer->format - 1).patterns, writer->pattern);
  }
  EXPECT_EQ(saved.size(), paletteWriters().size());
}

// The end of the string is the null after the last type.
TEST(FileTypes, AreSeparatedByNulls) {
  using namespace std::literals;
  EXPECT_EQ(filterOf(saveResultTypes()), L"Windows Bitmap (*.bmp)\0*.bmp\0PNG (*.png)\0*.png\0All Files\0*\0"s);
}

}  // namespace
}  // namespace quillhue
