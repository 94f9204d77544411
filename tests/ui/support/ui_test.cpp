#include "ui/support/ui_test.h"

#include "core/palette_format.h"
#include "formats/writers/palette_writers.h"

namespace quillhue {

std::wstring UiTest::paletteFile(const std::string& name, const Palette& palette) const {
  const PaletteFormat format = palette.getSize() < 256 ? palette_format::kJasc : palette_format::kGimp;
  return folder_.file(name, composePaletteFile(palette, format, {}).value());
}

const Editor& UiTest::open(const Palette& palette, int page) {
  editor_.reset();
  editor_ = std::make_unique<Editor>(paletteFile("own.pal", palette), page);
  return *editor_;
}

Palette brightPalette(std::int32_t size) {
  Palette palette = createPalette(size);
  for (std::int32_t i = 0; i < size; ++i) {
    palette.setEntry(i, {static_cast<std::uint8_t>(40 + i % 200), static_cast<std::uint8_t>(60 + i / 200),
                         static_cast<std::uint8_t>(10 + i * 7 % 199)});
  }
  return palette;
}

}  // namespace quillhue
