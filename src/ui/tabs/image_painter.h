#pragma once

#include "formats/work_image.h"
#include "remap/remapped_image.h"
#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Paint those of an image's rows that lie in `box` of a view whose corner shows the image's pixel `offset`. Nothing
/// of the system's is made: the pixels in view go straight to the device.
void paintRows(HDC dc, const Rect& box, Point offset, const WorkImage& image, const RowRange& rows);
/// Indexes past the image's colors are shown as a bitmap file has them, which fills its table with the blank color.
void paintRows(HDC dc, const Rect& box, Point offset, const RemappedImage& image, PaletteEntry blank,
               const RowRange& rows);

}  // namespace quillhue
