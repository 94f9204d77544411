#include "ui/services/file_types.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "formats/images/image_loaders.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "pictures/picture_decoder.h"
#include "ui/services/other_images.h"

namespace quillhue {

namespace {

FileType allFiles() { return {"All Files", "*"}; }

using Patterns = std::set<std::string_view>;

// Adds patterns that are separated by semicolons.
void add(Patterns& patterns, std::string_view list) {
  while (!list.empty()) {
    const std::string_view pattern = list.substr(0, list.find(';'));
    patterns.insert(pattern);
    list.remove_prefix(std::min(list.size(), pattern.size() + 1));
  }
}

// Returns all patterns of a catalogue and of a list without duplicates, in alphabetical order.
std::string patternsOf(const auto& catalogue, std::string_view list = {}) {
  Patterns patterns;
  for (const auto* member : catalogue) {
    add(patterns, member->patterns);
  }
  add(patterns, list);
  std::string joined;
  for (const std::string_view pattern : patterns) {
    joined.append(joined.empty() ? "" : ";").append(pattern);
  }
  return joined;
}

}  // namespace

std::vector<FileType> openPaletteTypes() {
  return {{"All Supported File Types", patternsOf(paletteReaders())}, allFiles()};
}

std::vector<FileType> openImageTypes() {
  return {{"Supported File Types", patternsOf(imageLoaders())},
          {"Other images", patternsOf(pictureKinds(), kSystemImagePatterns)},
          allFiles()};
}

std::vector<FileType> savePaletteTypes() {
  std::vector<FileType> types;
  for (const PaletteWriter* const writer : paletteWriters()) {
    types.push_back({std::string(writer->fileType), std::string(writer->pattern)});
  }
  return types;
}

std::vector<FileType> saveResultTypes() {
  return {{"Windows Bitmap (*.bmp)", "*.bmp"}, {"PNG (*.png)", "*.png"}, allFiles()};
}

}  // namespace quillhue
