#pragma once

#include "formats/work_image.h"
#include "remap/remapped_image.h"
#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/win32/system.h"

namespace quillhue {

/// Paint the given rows of an image within `box` of a view. The view's top left corner shows the image's pixel
/// `offset`. Create no GDI object: the visible pixels go directly to the device.
void paintRows(HDC dc, const Rect& box, Point offset, const WorkImage& image, const RowRange& rows);
/// Shows indexes past the image's colors in the blank color, as in the color table of a bitmap file.
void paintRows(HDC dc, const Rect& box, Point offset, const RemappedImage& image, PaletteEntry blank,
               const RowRange& rows);

}  // namespace quillhue
