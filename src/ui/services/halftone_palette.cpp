#include "ui/services/halftone_palette.h"

#include "ui/win32/logical_palette.h"

namespace quillhue {

std::vector<PaletteEntry> HalftonePalette::halftone() {
  const ScreenDc screen(GetDC(nullptr));
  return entriesOf(LogicalPalette(CreateHalftonePalette(screen.get())).get());
}

}  // namespace quillhue
