#include <gtest/gtest.h>

#include "core/palette.h"
#include "support/palettes.h"

namespace quillhue {
namespace {

constexpr PaletteEntry kBlank{9, 8, 7};

TEST(Palette, HasAtLeastOneEntry) {
  for (const std::int32_t size : {1, 0, -1, std::numeric_limits<std::int32_t>::min()}) {
    const Palette palette = createPalette(size, kBlank);
    EXPECT_EQ(colorsOf(palette), Colors{kBlank}) << size;
    EXPECT_EQ(resizedCopy(variedPalette(3), size, kBlank).getSize(), 1) << size;
  }
}

TEST(Palette, ResizedCopyKeepsColorsAndSelectionAndFillsWithTheBlankColor) {
  Palette palette = variedPalette(4);
  palette.selected()[1] = 1;
  palette.selected()[3] = 1;

  const Palette grown = resizedCopy(palette, 6, kBlank);
  const Colors old = colorsOf(palette);
  EXPECT_EQ(colorsOf(grown), (Colors{old[0], old[1], old[2], old[3], kBlank, kBlank}));
  EXPECT_EQ(Bytes(grown.selected().begin(), grown.selected().end()), (Bytes{0, 1, 0, 1, 0, 0}));

  const Palette shrunk = resizedCopy(palette, 2, kBlank);
  EXPECT_EQ(colorsOf(shrunk), (Colors{old[0], old[1]}));
  EXPECT_EQ(Bytes(shrunk.selected().begin(), shrunk.selected().end()), (Bytes{0, 1}));
}

}  // namespace
}  // namespace quillhue
