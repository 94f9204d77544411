#include <gtest/gtest.h>

#include <sstream>

#include "core/generators.h"
#include "effects/effect_editor.h"
#include "effects/effects.h"
#include "support/checksum.h"
#include "support/fakes.h"
#include "support/palettes.h"
#include "support/script.h"
#include "support/table.h"

namespace quillhue {
namespace {

constexpr std::int32_t kGamma = 7;
constexpr std::int32_t kNegative = 10;
constexpr std::int32_t kRotate = 12;
constexpr std::int32_t kPaste = 13;
constexpr std::int32_t kTwist = 14;

// edit.txt tests the colors that effects give.
class EffectsTest : public testing::Test {
 protected:
  RecordingServices fakes;
  DocumentSlot slot;

  PaletteDocument& open(Palette palette) {
    std::ranges::fill(palette.selected(), 1);
    slot.replaceDocument({.palette = std::move(palette)}, fakes.services);
    return *slot.document();
  }
};

TEST_F(EffectsTest, CurvesAreExact) {
  const Palette greys = open(createGreyscalePalette(256)).getPalette();
  for (const auto& [index, name] : {std::pair{kGamma, "gamma"}, {kTwist, "twist"}}) {
    Checksum sum;
    std::unique_ptr<Effect> effect;
    createEffect(index, 256, effect);
    for (std::int32_t value = effect->getMinimum(); value <= effect->getMaximum(); ++value) {
      Palette output = greys;
      effect->setValue(value);
      effect->apply({.palette = greys}, kAllChannels, output);
      std::ranges::for_each(output.channel(Channel::green), [&](std::uint8_t grey) { sum.add(grey); });
    }
    EXPECT_EQ(std::to_string(sum.value()), pinnedChecksum(name));
  }
}

TEST_F(EffectsTest, AnyOtherIndexIsColor) {
  for (const std::int32_t index : {static_cast<std::int32_t>(effects().size()), 255, -1}) {
    std::unique_ptr<Effect> effect;
    createEffect(index, 8, effect);
    EXPECT_EQ(std::tuple(effect->getMinimum(), effect->getMaximum(), effect->getValue()), std::tuple(-100, 200, 100));
  }
}

TEST_F(EffectsTest, ThoseWithoutEffectWriteNothing) {
  const Palette palette = open(variedPalette(3)).getPalette();
  for (const std::int32_t index : {kNegative, kRotate, kPaste}) {
    std::unique_ptr<Effect> effect;
    createEffect(index, 3, effect).setValue(1);
    Palette output = createPalette(3, {1, 1, 1});
    // Without channels; with one selected entry; without a palette on the clipboard.
    Palette input = palette;
    input.selected()[1] = input.selected()[2] = 0;
    effect->apply({.palette = input}, index == kNegative ? 0 : kAllChannels, output);
    EXPECT_EQ(output, createPalette(3, {1, 1, 1})) << index;
  }
}

TEST_F(EffectsTest, EveryEffectLeavesTheRestAsItIs) {
  fakes.clipboard = {{1, 2, 3}, {4, 5, 6}};
  for (std::int32_t index = 0; index < static_cast<std::int32_t>(effects().size()); ++index) {
    PaletteDocument& document = open(variedPalette(40));
    for (std::int32_t entry = 0; entry < 40; entry += 3) {
      document.deselect(entry);
    }
    EffectEditor editor(slot, fakes.settings, fakes);
    editor.choose(index);
    const std::int32_t least = editor.effect().getMinimum();
    for (ChannelMask mask = 0; mask <= kAllChannels; ++mask) {
      for (const std::int32_t value : {least, least + 40, editor.effect().getMaximum()}) {
        editor.setValue(value);
        const Palette& output = editor.preview(mask);
        for (std::int32_t entry = 0; entry < 40; ++entry) {
          const PaletteEntry color = document.getColor(entry);
          const ChannelMask reached = document.isSelected(entry) ? mask : 0;
          EXPECT_EQ(output.entry(entry), withChannels(color, reached, output.entry(entry))) << index << ' ' << mask;
        }
      }
    }
    EXPECT_EQ(document.modificationCount(), 0);
  }
}

TEST_F(EffectsTest, AreEditedAsTheTableSays) {
  for (const auto& row : readTable("effect_edits.txt")) {
    PaletteDocument& document = open(shownPalette(row.at(0)));
    fakes.clipboard = {{100, 100, 100}};
    fakes.clipboardIsBusy = false;
    fakes.settings.effect = 3;
    EffectEditor editor(slot, fakes.settings, fakes);
    const ScriptActs acts{{"choose", [&](auto& n) { editor.choose(n[0]); }},
                          {"value", [&](auto& n) { editor.setValue(n[0]); }},
                          {"apply", [&](auto& n) { editor.apply(static_cast<ChannelMask>(n[0])); }},
                          {"reset", [&](auto&) { editor.reset(); }},
                          {"undo", [&](auto&) { document.undo(); }},
                          {"resize", [&](auto& n) { document.resize(n[0]); }},
                          {"clipboard", [&](auto& n) { fakes.clipboard = {{clampToByte(n[0]), 50, 50}}; }},
                          {"busy", [&](auto& n) { fakes.clipboardIsBusy = n[0] == 1; }},
                          {"read", [&](auto&) { EXPECT_EQ(editor.readClipboard(), !fakes.clipboardIsBusy); }}};
    perform(acts, row.at(1));
    const Effect& effect = editor.effect();
    std::ostringstream numbers;
    numbers << effect.getMinimum() << ' ' << effect.getValue() << ' ' << effect.getMaximum();
    EXPECT_EQ(numbers.str(), row.at(2)) << row[1];
    EXPECT_EQ(show(document.getPalette()), row.at(3)) << row[1];
    EXPECT_EQ(show(editor.preview(5)), row.at(4)) << row[1];
    EXPECT_EQ(std::to_string(document.modificationCount()), row.at(5)) << row[1];
  }
}

}  // namespace
}  // namespace quillhue
