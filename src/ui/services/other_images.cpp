#include "ui/services/other_images.h"

#include "pictures/picture_file.h"
#include "pictures/windows/system_image.h"

namespace quillhue {

PictureResult loadOtherImage(ByteSource& source, PaletteEntry blank) {
  const PictureKind* const kind = findPictureKind(source);
  return decodeFile(source, blank, kind == nullptr ? decodeSystemImage : kind->decode);
}

}  // namespace quillhue
