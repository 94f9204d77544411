#pragma once

#include "formats/work_image.h"
#include "remap/remapped_image.h"
#include "ui/logic/geometry.h"
#include "ui/logic/image_view.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The part of a view that is painted.
struct ViewPart {
  HDC dc = nullptr;
  Rect box;
  /// The pixel of the image that the view's top left corner shows.
  Point offset;
};

/// Paint the given rows of an image. Create no GDI object: the visible pixels go directly to the device.
void paintRows(const ViewPart& view, const WorkImage& image, const RowRange& rows);
/// Shows indexes past the image's colors in the blank color, as in the color table of a bitmap file.
void paintRows(const ViewPart& view, const RemappedImage& image, PaletteEntry blank, const RowRange& rows);

}  // namespace quillhue
