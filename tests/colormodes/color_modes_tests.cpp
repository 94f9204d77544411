#include <gtest/gtest.h>

#include <algorithm>

#include "colormodes/color_models.h"
#include "support/checksum.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/table.h"

namespace quillhue {
namespace {

const auto kModels = static_cast<std::int32_t>(colorModels().size());

class ColorModesTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;
  std::unique_ptr<ColorMode> mode;

  void SetUp() override { slot.replaceDocument({.palette = createPalette(2)}, fakes.services); }

  void open(std::int32_t index, PaletteEntry color) {
    slot.document()->setColor(1, color);
    createColorMode(index, 1, slot, mode);
  }
  [[nodiscard]] std::string values() const {
    return std::to_string(mode->getLeftValue()) + ' ' + std::to_string(mode->getMiddleValue()) + ' ' +
           std::to_string(mode->getRightValue());
  }
  [[nodiscard]] PaletteEntry color() const { return slot.document()->getColor(1); }
  [[nodiscard]] std::string shownColor() const { return show(createPalette(1, color())); }
};

TEST_F(ColorModesTest, ConvertAsTheTableSays) {
  for (const auto& row : readTable("color_modes.txt")) {
    const auto model = std::ranges::find(colorModels(), row.at(0), &ColorModel::name) - colorModels().begin();
    open(static_cast<std::int32_t>(model), shownPalette(row.at(1)).entry(0));
    EXPECT_EQ(values(), row.at(2)) << row[0] << ' ' << row[1];
    if (row.size() > 3) {
      const Bar bar = kBars.at(static_cast<std::size_t>(std::stoi(row.at(3))));
      mode->setValue(bar, std::stoi(row.at(4)));
      EXPECT_EQ(shownColor(), row.at(5)) << row[0] << ' ' << row[1] << ' ' << row[3] << ' ' << row[4];
      EXPECT_EQ(mode->getValue(bar), std::stoi(row.at(4)));
    }
  }
}

TEST_F(ColorModesTest, ConvertALatticeOfColorsAndNumbers) {
  for (std::int32_t index = 0; index < kModels; ++index) {
    const std::string model(colorModels()[static_cast<std::size_t>(index)]->name);
    Checksum toValues;
    open(index, {});
    for (int red = 0; red < 256; red += 15) {
      for (int green = 0; green < 256; green += 15) {
        for (int blue = 0; blue < 256; blue += 15) {
          slot.document()->setColor(1, {clampToByte(red), clampToByte(green), clampToByte(blue)});
          mode->setEntry(1);
          for (const Bar bar : kBars) {
            toValues.add(static_cast<std::uint8_t>(mode->getValue(bar)));
            toValues.add(static_cast<std::uint8_t>(mode->getValue(bar) >> 8));
          }
        }
      }
    }
    EXPECT_EQ(std::to_string(toValues.value()), pinnedChecksum(model + " numbers")) << model;
    Checksum toColors;
    const auto [leftLeast, leftGreatest] = mode->channelRange(Bar::left);
    const auto [middleLeast, middleGreatest] = mode->channelRange(Bar::middle);
    for (std::int32_t left = leftLeast; left <= leftGreatest; left += 11) {
      mode->setLeftValue(left);
      for (std::int32_t middle = middleLeast; middle <= middleGreatest; middle += 17) {
        mode->setMiddleValue(middle);
        std::ranges::for_each(mode->bar(Bar::right), [&](const PaletteEntry& shown) { toColors.add(shown); });
      }
    }
    EXPECT_EQ(std::to_string(toColors.value()), pinnedChecksum(model + " colors")) << model;
  }
}

TEST_F(ColorModesTest, SettersBuildTheOtherBars) {
  for (std::int32_t index = 0; index < kModels; ++index) {
    open(index, {200, 60, 110});
    const BarColors strip = mode->fixedStrip(Bar::left);
    EXPECT_EQ(strip, mode->bar(Bar::left)) << index;
    for (const Bar set : kBars) {
      const auto before = mode->bar(set);
      mode->setValue(set, 77);
      EXPECT_EQ(mode->bar(set), before) << index;
      // A bar shows the colors that its channel would give the entry.
      for (const Bar other : kBars) {
        const auto [minimum, maximum] = mode->channelRange(other);
        const PaletteEntry shown = mode->bar(other)[201];
        const std::int32_t kept = mode->getValue(other);
        mode->setValue(other, minimum + 201 * (maximum - minimum) / 255);
        EXPECT_TRUE(other == set || color() == shown) << index;
        mode->setValue(other, kept);
      }
    }
    EXPECT_EQ(mode->fixedStrip(Bar::left), strip) << index;
  }
}

TEST_F(ColorModesTest, SettersWriteNothingIntoALockedDocumentOrPastItsEnd) {
  for (std::int32_t index = 0; index < kModels; ++index) {
    open(index, {200, 60, 110});
    slot.document()->lock();
    mode->setLeftValue(0);
    mode->setMiddleValue(99);
    slot.document()->unlock();
    EXPECT_EQ(color(), (PaletteEntry{200, 60, 110})) << index;
    mode->setEntry(2);
    mode->setRightValue(50);
    EXPECT_EQ(show(slot.document()->getPalette()), "0,0,0 200,60,110") << index;
    EXPECT_EQ(slot.document()->modificationCount(), 0);
  }
  // While locked, the bars still follow the number that was set.
  open(4, {1, 2, 3});
  slot.document()->lock();
  mode->setLeftValue(9);
  EXPECT_EQ(mode->bar(Bar::right)[7], (PaletteEntry{9, 2, 7}));
}

// The exact models keep no numbers.
TEST_F(ColorModesTest, RgbAndCmyReadTheEntryAsItIs) {
  for (const auto& [index, expected] : {std::pair{4, "7 50 60"}, {0, "7 205 195"}}) {
    open(index, {1, 2, 3});
    slot.document()->setColor(1, {40, 50, 60});
    mode->setLeftValue(7);
    EXPECT_EQ(values(), expected);
    EXPECT_EQ(color().blue, 60);
  }
}

TEST_F(ColorModesTest, AnyOtherIndexIsRgb) {
  for (const std::int32_t index : {-1, kModels, 255}) {
    open(index, {1, 2, 3});
    EXPECT_EQ(values(), "1 2 3");
  }
}

}  // namespace
}  // namespace quillhue
