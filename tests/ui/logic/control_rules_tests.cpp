#include <gtest/gtest.h>

#include "support/table.h"
#include "ui/logic/from_image_dialog.h"
#include "ui/logic/typed_number.h"
#include "ui/logic/use_controls.h"
#include "ui/logic/wheel_sum.h"

namespace quillhue {
namespace {

constexpr auto kMaintain = RemapMode::maintain;
constexpr auto kNearest = RemapMode::nearest;
constexpr auto kDither = RemapMode::dither;

RemapMode modeOf(char letter) { return letter == 'm' ? kMaintain : letter == 'n' ? kNearest : kDither; }

// "+" or "-" for each.
std::string shown(std::initializer_list<bool> enabled) {
  std::string text;
  for (const bool each : enabled) {
    text += each ? '+' : '-';
  }
  return text;
}

TEST(UseControls, FollowImageAndMode) {
  for (const auto& row : readTable("use_controls.txt")) {
    const auto is = [&](std::string_view word) { return row.at(0).contains(word); };
    const UseState state{.hasImage = is("image"),
                         .isIndexed = is("indexed"),
                         .hasResult = is("result"),
                         .isBusy = is("busy"),
                         .mode = modeOf(row.at(1).at(0)),
                         .protectColor = is("color"),
                         .protectGrid = is("grid")};
    const LoadControls load = loadControls(state);
    const ProtectControls protect = protectControls(state);
    EXPECT_EQ(shown({load.load, load.maintain, load.nearest, load.dither, load.process, load.saveAs}) + ' ' +
                  shown({protect.protectColor, protect.color, protect.protectGrid, protect.gridSides}),
              row.at(2))
        << row[0] << ", " << row[1];
    EXPECT_EQ(modeAfterLoad(state), modeOf(row.at(3).at(0))) << row[0] << ", " << row[1];
    std::string clicked;
    for (const char mode : {'m', 'n', 'd'}) {
      clicked += clickedMode(state, modeOf(mode)) == modeOf(mode) ? mode : '-';
    }
    EXPECT_EQ(clicked, row.at(4)) << row[0] << ", " << row[1];
    EXPECT_EQ(areLabelsGrey(state), !is("grid"));
    EXPECT_EQ(imageStatusText(is("image")), is("image") ? "Image available" : "No image");
  }
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
