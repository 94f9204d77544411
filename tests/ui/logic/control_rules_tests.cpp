#include <gtest/gtest.h>

#include "ui/logic/from_image_dialog.h"
#include "ui/logic/typed_number.h"
#include "ui/logic/use_controls.h"
#include "ui/logic/wheel_sum.h"

namespace quillhue {
namespace {

constexpr auto kMaintain = RemapMode::maintain;
constexpr auto kNearest = RemapMode::nearest;
constexpr auto kDither = RemapMode::dither;

// How they follow image and mode is tested with the window.
TEST(UseControls, CanBeTickedWithoutAnImageButNotUsedInARun) {
  UseState state{.mode = kDither, .protectColor = true, .protectGrid = true};
  EXPECT_EQ(loadControls(state), LoadControls{.load = true});
  EXPECT_EQ(protectControls(state), (ProtectControls{true, true, true, true}));
  EXPECT_FALSE(areLabelsGrey(state));
  state.hasImage = state.isIndexed = state.hasResult = state.isBusy = true;
  EXPECT_EQ(loadControls(state), LoadControls{});
  EXPECT_EQ(protectControls(state), ProtectControls{});
  EXPECT_TRUE(areLabelsGrey({.protectColor = true}));
}

TEST(UseControls, ChangeTheMode) {
  const struct {
    bool hasImage;
    bool isIndexed;
    RemapMode mode;
    RemapMode afterLoad;
    std::optional<RemapMode> clicked[3];
  } cases[] = {
      {false, false, kMaintain, kMaintain, {std::nullopt, kNearest, kDither}},
      {true, true, kMaintain, kMaintain, {std::nullopt, kNearest, kDither}},
      {true, true, kDither, kDither, {kMaintain, kNearest, std::nullopt}},
      {true, false, kMaintain, kNearest, {std::nullopt, kNearest, kDither}},
      {true, false, kNearest, kNearest, {std::nullopt, std::nullopt, kDither}},
      {true, false, kDither, kDither, {std::nullopt, kNearest, std::nullopt}},
  };
  for (const auto& [hasImage, isIndexed, mode, afterLoad, clicked] : cases) {
    const UseState state{.hasImage = hasImage, .isIndexed = isIndexed, .mode = mode};
    EXPECT_EQ(modeAfterLoad(state), afterLoad);
    for (const RemapMode button : {kMaintain, kNearest, kDither}) {
      EXPECT_EQ(clickedMode(state, button), clicked[static_cast<std::size_t>(button)]);
    }
  }
  EXPECT_EQ(imageStatusText(false), "No image");
  EXPECT_EQ(imageStatusText(true), "Image available");
}

TEST(TypedNumber, BringsAnythingIntoTheRange) {
  const struct {
    const wchar_t* text;
    std::optional<std::int32_t> number;
    // In -100 .. 200, after 7.
    std::int32_t value;
  } cases[] = {
      {L"42", 42, 42},
      {L" 042\t", 42, 42},
      {L"-5", -5, -5},
      {L"201", 201, 200},
      {L"-101", -101, -100},
      {L"2147483647", 2147483647, 200},
      {L"2147483648", 2147483647, 200},
      {L"99999999999999999999999", 2147483647, 200},
      {L"-99999999999999999999999", -2147483647 - 1, -100},
      {L"", std::nullopt, 7},
      {L"-", std::nullopt, 7},
      {L"4 2", std::nullopt, 7},
      {L"--4", std::nullopt, 7},
      {L"4x", std::nullopt, 7},
      {L"+4", std::nullopt, 7},
  };
  for (const auto& [text, number, value] : cases) {
    EXPECT_EQ(typedNumber(text), number) << testing::PrintToString(text);
    EXPECT_EQ(typedValue(text, {-100, 200}, 7), value) << testing::PrintToString(text);
  }
  EXPECT_EQ(typedValue(L"", {1, 5}, 7), 5);
}

TEST(TypedNumber, StepsWithinTheRange) {
  const struct {
    std::int32_t value;
    std::int32_t step;
    std::int32_t result;
  } cases[] = {{200, 10, 210}, {250, 10, 255}, {255, 1, 255}, {255, -300, 0}, {0, -1, 0}, {0, 2147483647, 255}};
  for (const auto& [value, step, result] : cases) {
    EXPECT_EQ(steppedValue(value, step, {0, 255}), result) << value << ' ' << step;
  }
}

TEST(WheelSum, AddsUpPartsOfANotch) {
  WheelSum sum;
  std::vector<std::int32_t> steps;
  for (const std::int32_t delta : {240, 50, 50, 50, -100, -20, 119, 1}) {
    steps.push_back(sum.add(delta));
  }
  EXPECT_EQ(steps, (std::vector{2, 0, 0, 1, 0, -1, 0, 1}));
  static_cast<void>(sum.add(100));
  sum.reset();
  EXPECT_EQ(sum.add(20), 0);
  // 48 pixels a notch.
  EXPECT_EQ(sum.add(5, 48), 2);
}

TEST(FromImageDialog, ProposesAndAnswers) {
  const struct {
    std::uint64_t colors;
    std::optional<std::int32_t> size;
    std::int32_t proposed;
    // 0 for a refusal.
    std::int32_t all;
    std::int32_t reduced;
  } cases[] = {
      {1, 1, 1, 1, -1},           {200, 1024, 200, 1024, -1024},   {256, 256, 256, 256, -256},
      {257, 256, 256, 257, -256}, {1024, 1, 256, 1024, -1},        {1024, 0, 256, 0, 0},
      {1024, 1025, 256, 0, 0},    {1024, std::nullopt, 256, 0, 0},
  };
  for (const auto& [colors, size, proposed, all, reduced] : cases) {
    EXPECT_EQ(proposedSize(colors), proposed) << colors;
    EXPECT_TRUE(canUseAllColors(colors)) << colors;
    EXPECT_EQ(useAllColors(size, colors).value_or(0), all) << colors;
    EXPECT_EQ(reduceColors(size).value_or(0), reduced) << colors;
  }
  EXPECT_FALSE(canUseAllColors(1025));
  EXPECT_FALSE(canUseAllColors(std::uint64_t{1} << 32));
  EXPECT_EQ(proposedSize(std::uint64_t{1} << 32), 256);
  EXPECT_EQ(reduceColors(0).error(), "The palette size must be a number from 1 to 1024.");
  EXPECT_EQ(colorsFoundText(1), "1 different color found in the image.");
  EXPECT_EQ(colorsFoundText(300), "300 different colors found in the image.");
}

}  // namespace
}  // namespace quillhue
