#include "formats/image_file.h"

#include <utility>

#include "formats/files.h"
#include "formats/images/image_loaders.h"

namespace quillhue {

bool loadImageFile(const std::wstring& fileName, std::optional<WorkImage>& image, Messages& messages,
                   const LoadOtherImage& loadOther) {
  const auto source = openFile(fileName);
  ImageResult loaded = source ? loadImage(**source) : std::unexpected(source.error());
  if (!loaded && loaded.error() == Failure::unrecognisedType && loadOther) {
    loaded = loadOther(**source);
  }
  if (!loaded) {
    messages.error(textOf(loaded.error()));
    return false;
  }
  image = std::move(*loaded);
  return true;
}

}  // namespace quillhue
