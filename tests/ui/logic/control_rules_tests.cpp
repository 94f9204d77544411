#include <gtest/gtest.h>

#include <array>

#include "core/utf8.h"
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

// Returns "+" or "-" for each value.
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
  for (const auto& row : readTable("typed_numbers.txt")) {
    const std::wstring text = fromUtf8(row.at(0));
    const auto number = typedNumber(text);
    EXPECT_EQ(number ? std::to_string(*number) : "", row.at(1)) << row[0];
    EXPECT_EQ(std::to_string(typedValue(text, {-100, 200}, 7)), row.at(2)) << row[0];
  }
  EXPECT_EQ(typedValue(L"", {1, 5}, 7), 5);
}

TEST(TypedNumber, StepsWithinTheRange) {
  for (const auto& [value, step, result] :
       {std::array{200, 10, 210}, {250, 10, 255}, {255, 1, 255}, {255, -300, 0}, {0, -1, 0}, {0, 2147483647, 255}}) {
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
  // A notch is 48 pixels.
  EXPECT_EQ(sum.add(5, 48), 2);
}

TEST(FromImageDialog, ProposesAndAnswers) {
  for (const auto& row : readTable("from_image.txt")) {
    const std::uint64_t colors = std::stoull(row.at(0));
    const auto size = row.at(1).empty() ? std::nullopt : std::optional(std::stoi(row[1]));
    const auto text = [](const auto& answer) { return answer ? std::to_string(*answer) : "refused"; };
    EXPECT_EQ(std::to_string(proposedSize(colors)), row.at(2)) << row[0];
    EXPECT_EQ(text(useAllColors(size, colors)), row.at(3)) << row[0] << ", " << row[1];
    EXPECT_EQ(text(reduceColors(size)), row.at(4)) << row[0] << ", " << row[1];
  }
  EXPECT_TRUE(canUseAllColors(1024));
  EXPECT_FALSE(canUseAllColors(1025));
  EXPECT_FALSE(canUseAllColors(std::uint64_t{1} << 32));
  EXPECT_EQ(reduceColors(0).error(), "The palette size must be a number from 1 to 1024.");
  EXPECT_EQ(colorsFoundText(1), "1 different color found in the image.");
  EXPECT_EQ(colorsFoundText(300), "300 different colors found in the image.");
}

}  // namespace
}  // namespace quillhue
