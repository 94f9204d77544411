#include <gtest/gtest.h>

#include "colormodes/color_models.h"
#include "support/fakes.h"
#include "ui/logic/entry_texts.h"
#include "ui/logic/tip_position.h"
#include "ui/logic/typed_entry.h"

namespace quillhue {
namespace {

Palette twoColors() {
  const PaletteEntry colors[] = {{0xE8, 0xB0, 0x0A}, {0, 0, 255}};
  return paletteOf(colors);
}

TEST(EntryTexts, DescribeAnEntry) {
  const Palette palette = twoColors();
  EXPECT_EQ(entryStatusText(palette, 0), "0: #E8B00A");
  EXPECT_EQ(entryStatusText(palette, 1), "1: #0000FF");
  for (const std::int32_t none : {-1, 2, 2147483647}) {
    EXPECT_EQ(entryStatusText(palette, none), "") << none;
  }
  Palette preview = palette;
  preview.setEntry(1, {1, 2, 3});
  EXPECT_EQ(entryName(palette, 1), "Entry 1, #0000FF");
  EXPECT_EQ(entryTooltip(palette, 0, "three numbers", &preview), "0: #E8B00A\nthree numbers");
  EXPECT_EQ(entryTooltip(palette, 1, numbersText(palette.entry(1)), &preview),
            "1: #0000FF\nred 0, green 0, blue 255\nPreview: #010203\nred 1, green 2, blue 3");

  RecordingServices recording;
  DocumentSlot slot;
  slot.replaceDocument({.palette = palette}, recording.services);
  std::unique_ptr<ColorMode> mode;
  // HSV.
  constexpr std::int32_t kModel = 3;
  createColorMode(kModel, 1, slot, mode);
  EXPECT_EQ(numbersText(*mode, colorModelOf(kModel).channels), "hue 240, saturation 255, value 255");
}

TEST(EntryTexts, DescribeAPixel) {
  WorkImage indexed(3, 2, createPalette(16, {1, 2, 3}));
  indexed.row(1)[2] = 15;
  EXPECT_EQ(pixelTooltip(indexed, {2, 1}), "2, 1: index 15, #010203");
  for (const Point outside : {Point{-1, 0}, Point{0, -1}, Point{3, 0}, Point{0, 2}}) {
    EXPECT_EQ(pixelTooltip(indexed, outside), "");
  }
  WorkImage direct(2, 1, std::nullopt);
  direct.row(0)[3] = 0x30;
  direct.row(0)[5] = 0x10;
  EXPECT_EQ(pixelTooltip(direct, {1, 0}), "1, 0: #100030");
  RemappedImage result;
  result.prepare(3, 2, entriesOf(twoColors()));
  result.row(1)[1] = 1;
  result.row(1)[2] = 2;
  EXPECT_EQ(pixelTooltip(result, {9, 9, 9}, {1, 1}), "1, 1: index 1, #0000FF");
  EXPECT_EQ(pixelTooltip(result, {9, 9, 9}, {2, 1}), "2, 1: index 2, #090909");
  EXPECT_EQ(pixelTooltip(result, {9, 9, 9}, {3, 1}), "");
}

TEST(EntryTexts, NameTheImage) {
  EXPECT_EQ(imageName(std::nullopt, false), "No image");
  EXPECT_EQ(imageName(Size{640, 1}, false), "Image, 640 by 1 pixels");
  EXPECT_EQ(imageName(Size{640, 1}, true), "Image, 640 by 1 pixels, remapped");
}

TEST(TipPosition, IsBesideThePointerAndOnTheScreen) {
  const Rect screen{-1000, 0, 1000, 800};
  const struct {
    Point pointer;
    std::int32_t dpi;
    Point corner;
  } cases[] = {{{10, 10}, 96, {10, 32}},     {{10, 10}, 192, {10, 54}},       {{950, 10}, 96, {900, 32}},
               {{10, 738}, 96, {10, 760}},   {{10, 739}, 96, {10, 695}},      {{999, 799}, 192, {900, 751}},
               {{-990, 10}, 96, {-990, 32}}, {{-1000, 799}, 96, {-1000, 755}}};
  for (const auto& [pointer, dpi, corner] : cases) {
    EXPECT_EQ(tipPosition(pointer, {100, 40}, screen, Scale{dpi}), corner) << pointer.x << ' ' << pointer.y;
  }
  EXPECT_EQ(tipPosition({10, 10}, {3000, 40}, screen, {}).x, -1000);
}

TEST(TypedEntry, IsAnEntryOfThePalette) {
  const struct {
    std::string_view digits;
    const char* text;
    // In a palette of 256 entries.
    std::optional<std::int32_t> entry;
  } cases[] = {{"", "Go to ", std::nullopt}, {"0", "Go to 0", 0},
               {"29", "Go to 29", 29},       {"007", "Go to 007", 7},
               {"255", "Go to 255", 255},    {"256", "Go to 256", std::nullopt},
               {"00001", "Go to 0000", 0},   {"9999999999", "Go to 9999", std::nullopt}};
  for (const auto& [digits, text, entry] : cases) {
    TypedEntry typed;
    for (const char digit : digits) {
      typed.add(digit);
    }
    EXPECT_EQ(typed.isEmpty(), digits.empty());
    EXPECT_EQ(typed.statusText(), text);
    EXPECT_EQ(typed.finish(256), entry) << digits;
    EXPECT_TRUE(typed.isEmpty());
  }
}

}  // namespace
}  // namespace quillhue
