#include "commands/command_ids.h"
#include "ui/logic/window_size.h"
#include "ui/resources/dialog_ids.h"
#include "ui/support/menus.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Settings : public UiTest {
 protected:
  const Scale scale_ = Scale{screenDpi()};
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

// A start takes what is stored, and the exit writes it back beside what it does not know.
TEST_F(Settings, AreKept) {
  StoredSettings stored{{"Window width", storedNumber(least_.width + 1)},
                        {"Window height", storedNumber(100)},
                        {"Palette size", storedNumber(1000)},
                        {"Blank", storedBytes({1, 2, 255})},
                        {"Windows colors", storedBytes({1})},
                        {"RGB levels", storedBytes({2, 0, 255})},
                        {"Color mode", storedBytes({8})},
                        {"Effect", storedBytes({14})},
                        {"Selection mode", storedBytes({2})},
                        {"Unknown", storedNumber(7)}};
  store(stored);
  const Program program;
  EXPECT_EQ(outerSizeOf(program.window()), (Size{least_.width + 1, least_.height}));
  for (std::uint8_t mode = 0; mode < 3; ++mode) {
    EXPECT_EQ(menuBarItem(program, command_id::kFreeSelection + mode).isChecked, mode == 2);
  }
  program.close();
  stored["Window height"] = storedNumber(least_.height);
  EXPECT_EQ(storedSettings(), stored);
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
