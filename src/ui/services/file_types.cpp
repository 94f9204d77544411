#include "ui/services/file_types.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

#include "formats/images/image_loaders.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"

namespace quillhue {

namespace {

FileType allFiles() { return {"All Files", "*"}; }

// Returns all patterns of a catalogue without duplicates, in alphabetical order.
std::string patternsOf(const auto& catalogue) {
  std::set<std::string_view> patterns;
  for (const auto* member : catalogue) {
    std::string_view rest = member->patterns;
    while (!rest.empty()) {
      const std::string_view pattern = rest.substr(0, rest.find(';'));
      patterns.insert(pattern);
      rest.remove_prefix(std::min(rest.size(), pattern.size() + 1));
    }
  }
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

std::vector<FileType> openImageTypes() { return {{"Supported File Types", patternsOf(imageLoaders())}, allFiles()}; }

std::vector<FileType> savePaletteTypes() {
  std::vector<FileType> types;
  for (const PaletteWriter* const writer : paletteWriters()) {
    types.push_back({std::string(writer->fileType), std::string(writer->pattern)});
  }
  return types;
}

std::vector<FileType> saveBitmapTypes() { return {{"Windows Bitmap (*.bmp)", "*.bmp"}, allFiles()}; }

}  // namespace quillhue
