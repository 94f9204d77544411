#include "ui/support/ui_test.h"

#include "core/palette_format.h"
#include "formats/files.h"
#include "formats/readers/palette_readers.h"
#include "formats/writers/palette_writers.h"
#include "ui/logic/command_ids.h"

namespace quillhue {

std::wstring UiTest::paletteFile(const std::string& name, const Palette& palette) const {
  const PaletteFormat format = palette.getSize() < 256 ? palette_format::kJasc : palette_format::kGimp;
  return folder_.file(name, composePaletteFile(palette, format, {}).value());
}

Palette UiTest::savedPalette(const Program& program, const std::wstring& file) {
  program.run(command_id::kSave);
  return paletteIn(file);
}

Palette UiTest::paletteIn(const std::wstring& file) {
  const auto source = openFile(file);
  if (!source) {
    throw ProgramError("can't open " + narrow(file));
  }
  const auto result = readPalette({.source = **source, .name = file});
  if (!result) {
    throw ProgramError("can't read " + narrow(file));
  }
  return std::get<FilePalette>(*result).palette;
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
