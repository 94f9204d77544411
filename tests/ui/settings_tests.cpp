#include "ui/logic/command_ids.h"
#include "ui/logic/window_size.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Settings : public UiTest {
 protected:
  const Scale scale_ = screenScale();
  const Size least_ = minimumWindowSize(scale_);
  const Size usual_ = defaultWindowSize(scale_);

  [[nodiscard]] StoredSettings defaults() const {
    return {{"Window width", storedNumber(static_cast<std::uint32_t>(usual_.width))},
            {"Window height", storedNumber(static_cast<std::uint32_t>(usual_.height))},
            {"Palette size", storedNumber(256)},
            {"Blank", storedBytes({0, 0, 0})},
            {"Windows colors", storedBytes({0})},
            {"RGB levels", storedBytes({6, 7, 6})},
            {"Color mode", storedBytes({4})},
            {"Effect", storedBytes({5})},
            {"Selection mode", storedBytes({0})}};
  }
};

TEST_F(Settings, OfAFirstStartAreTheDefaults) {
  Program program;
  EXPECT_EQ(outerSizeOf(program.window()), usual_);
  program.close();
  EXPECT_EQ(storedSettings(), defaults());
}

// What a start takes and the exit writes, for each value alone.
TEST_F(Settings, AreCheckedWhenRead) {
  const auto number = [](std::int32_t value) { return storedNumber(static_cast<std::uint32_t>(value)); };
  const struct {
    const char* name;
    StoredValue stored;
    StoredValue written;
  } kCases[] = {
      {"Window width", number(100), number(least_.width)},
      {"Window width", number(least_.width + 1), number(least_.width + 1)},
      {"Window width", number(0xFFFF), number(least_.width)},
      {"Window width", number(0x10000 + 700), number(700)},
      {"Window width", storedText("900"), number(usual_.width)},
      {"Window height", number(0), number(least_.height)},
      {"Window height", number(-5), number(least_.height)},
      {"Window height", number(0x7F0000 + 600), number(600)},
      {"Window height", storedBytes({100, 2, 0, 0}), number(usual_.height)},
      {"Palette size", number(1), number(1)},
      {"Palette size", number(1024), number(1024)},
      {"Palette size", number(5000), number(1024)},
      {"Palette size", number(-1), number(1024)},
      {"Blank", storedBytes({1, 2, 255}), storedBytes({1, 2, 255})},
      {"Blank", storedBytes({1, 2}), storedBytes({0, 0, 0})},
      {"Blank", storedBytes({1, 2, 3, 4}), storedBytes({0, 0, 0})},
      {"Windows colors", storedBytes({1}), storedBytes({1})},
      {"Windows colors", number(1), storedBytes({0})},
      {"RGB levels", storedBytes({2, 0, 255}), storedBytes({2, 0, 255})},
      {"Color mode", storedBytes({8}), storedBytes({8})},
      {"Color mode", storedBytes({9}), storedBytes({4})},
      {"Effect", storedBytes({14}), storedBytes({14})},
      {"Effect", storedBytes({15}), storedBytes({5})},
      {"Selection mode", storedBytes({2}), storedBytes({2})},
      {"Selection mode", storedBytes({3}), storedBytes({0})},
  };
  // A start takes its time, so each takes the next case of every value.
  std::map<std::string, std::size_t> count;
  std::vector<std::vector<std::size_t>> starts;
  for (std::size_t i = 0; i < std::size(kCases); ++i) {
    const std::size_t start = count[kCases[i].name]++;
    starts.resize(std::max(starts.size(), start + 1));
    starts[start].push_back(i);
  }
  for (const auto& cases : starts) {
    StoredSettings stored{{"Unknown", storedNumber(7)}};
    StoredSettings written = defaults();
    written["Unknown"] = storedNumber(7);
    for (const std::size_t i : cases) {
      stored[kCases[i].name] = kCases[i].stored;
      written[kCases[i].name] = kCases[i].written;
    }
    store(stored);
    Program program;
    const Size size = outerSizeOf(program.window());
    EXPECT_EQ(number(size.width), written["Window width"]);
    EXPECT_EQ(number(size.height), written["Window height"]);
    program.close();
    const StoredSettings after = storedSettings().value_or(StoredSettings{});
    for (const auto& [name, value] : written) {
      EXPECT_EQ(after.at(name), value) << name;
    }
  }
}

TEST_F(Settings, KeepTheSizeOfTheWindow) {
  Program first;
  SetWindowPos(first.window(), nullptr, 0, 0, least_.width + 31, least_.height + 17, SWP_NOMOVE | SWP_NOZORDER);
  first.close();
  Program second;
  EXPECT_EQ(outerSizeOf(second.window()), (Size{least_.width + 31, least_.height + 17}));
  second.close();
}

TEST_F(Settings, FillTheDialogForANewPalette) {
  store(StoredSettings{{"Palette size", storedNumber(5000)},
                       {"Windows colors", storedBytes({1})},
                       {"RGB levels", storedBytes({2, 3, 4})}});
  Program program;
  program.start(command_id::kNewRgb);
  {
    const Dialog dialog(program, L"New palette properties");
    EXPECT_EQ(dialog.typed(NEW_SIZE), L"1024");
    EXPECT_EQ(dialog.typed(NEW_RED), L"2");
    EXPECT_EQ(dialog.typed(NEW_GREEN), L"3");
    EXPECT_EQ(dialog.typed(NEW_BLUE), L"4");
    EXPECT_EQ(program.ask(dialog.control(NEW_WINDOWS_COLORS), BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(dialog.typed(NEW_MINIMUM), L"(min. 44)");
    // A refused size is kept all the same.
    dialog.type(NEW_SIZE, L"43");
    dialog.press(IDOK);
    EXPECT_EQ(answerMessage(program, L"Error", IDOK),
              L"The chosen palette size is not large enough to contain the specified colors.");
    dialog.answer(IDCANCEL);
  }
  program.close();
  EXPECT_EQ(storedSettings().value_or(StoredSettings{}).at("Palette size"), storedNumber(43));
}

TEST_F(Settings, TellTheSelectionMode) {
  for (std::uint8_t mode = 0; mode < 3; ++mode) {
    store(StoredSettings{{"Selection mode", storedBytes({mode})}});
    Program program;
    for (std::int32_t each = 0; each < 3; ++each) {
      EXPECT_EQ(menuBarItem(program, command_id::kFreeSelection + each).isChecked, each == mode);
    }
    program.close();
  }
}

}  // namespace
}  // namespace quillhue
