#include "commands/command_ids.h"
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

  const StoredSettings defaults_{{"Window width", storedNumber(usual_.width)},
                                 {"Window height", storedNumber(usual_.height)},
                                 {"Palette size", storedNumber(256)},
                                 {"Blank", storedBytes({0, 0, 0})},
                                 {"Windows colors", storedBytes({0})},
                                 {"RGB levels", storedBytes({6, 7, 6})},
                                 {"Color mode", storedBytes({4})},
                                 {"Effect", storedBytes({5})},
                                 {"Selection mode", storedBytes({0})}};
};

TEST_F(Settings, OfAFirstStartAreTheDefaultsAndTheSizeOfTheWindowIsKept) {
  const Program first;
  EXPECT_EQ(outerSizeOf(first.window()), usual_);
  first.close();
  EXPECT_EQ(storedSettings(), defaults_);
  const Size size{least_.width + 31, least_.height + 17};
  const Program second;
  second.resize(size);
  second.close();
  const Program third;
  EXPECT_EQ(outerSizeOf(third.window()), size);
}

// What a start takes and the exit writes, for each value alone.
TEST_F(Settings, AreCheckedWhenRead) {
  const StoredValue text{REG_SZ, {'9', 0, '0', 0, '0', 0, 0, 0}};
  const struct {
    // A start takes its time, so each takes a case of every value.
    int start;
    const char* name;
    StoredValue stored;
    StoredValue written;
  } kCases[] = {
      {0, "Window width", storedNumber(100), storedNumber(least_.width)},
      {1, "Window width", storedNumber(least_.width + 1), storedNumber(least_.width + 1)},
      {2, "Window width", storedNumber(0xFFFF), storedNumber(least_.width)},
      {3, "Window width", storedNumber(0x10000 + 700), storedNumber(700)},
      {4, "Window width", text, storedNumber(usual_.width)},
      {0, "Window height", storedNumber(0), storedNumber(least_.height)},
      {1, "Window height", storedNumber(-5), storedNumber(least_.height)},
      {2, "Window height", storedNumber(0x7F0000 + 600), storedNumber(600)},
      {3, "Window height", storedBytes({100, 2, 0, 0}), storedNumber(usual_.height)},
      {0, "Palette size", storedNumber(1), storedNumber(1)},
      {1, "Palette size", storedNumber(1024), storedNumber(1024)},
      {2, "Palette size", storedNumber(5000), storedNumber(1024)},
      {3, "Palette size", storedNumber(-1), storedNumber(1024)},
      {0, "Blank", storedBytes({1, 2, 255}), storedBytes({1, 2, 255})},
      {1, "Blank", storedBytes({1, 2}), storedBytes({0, 0, 0})},
      {2, "Blank", storedBytes({1, 2, 3, 4}), storedBytes({0, 0, 0})},
      {0, "Windows colors", storedBytes({1}), storedBytes({1})},
      {1, "Windows colors", storedNumber(1), storedBytes({0})},
      {0, "RGB levels", storedBytes({2, 0, 255}), storedBytes({2, 0, 255})},
      {0, "Color mode", storedBytes({8}), storedBytes({8})},
      {1, "Color mode", storedBytes({9}), storedBytes({4})},
      {0, "Effect", storedBytes({14}), storedBytes({14})},
      {1, "Effect", storedBytes({15}), storedBytes({5})},
      {0, "Selection mode", storedBytes({1}), storedBytes({1})},
      {1, "Selection mode", storedBytes({2}), storedBytes({2})},
      {2, "Selection mode", storedBytes({3}), storedBytes({0})},
  };
  for (int start = 0; start < 5; ++start) {
    SCOPED_TRACE(start);
    StoredSettings stored{{"Unknown", storedNumber(7)}};
    StoredSettings written = defaults_;
    written["Unknown"] = storedNumber(7);
    for (const auto& each : kCases) {
      if (each.start == start) {
        stored[each.name] = each.stored;
        written[each.name] = each.written;
      }
    }
    store(stored);
    const Program program;
    const Size size = outerSizeOf(program.window());
    EXPECT_EQ(storedNumber(size.width), written["Window width"]);
    EXPECT_EQ(storedNumber(size.height), written["Window height"]);
    for (std::uint8_t mode = 0; mode < 3; ++mode) {
      EXPECT_EQ(menuBarItem(program, command_id::kFreeSelection + mode).isChecked,
                written["Selection mode"] == storedBytes({mode}));
    }
    program.close();
    EXPECT_EQ(storedSettings(), written);
  }
}

TEST_F(Settings, FillTheDialogForANewPalette) {
  store({{"Palette size", storedNumber(5000)},
         {"Windows colors", storedBytes({1})},
         {"RGB levels", storedBytes({2, 3, 4})}});
  const Program program;
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
  EXPECT_EQ(storedSettings()["Palette size"], storedNumber(43));
}

}  // namespace
}  // namespace quillhue
