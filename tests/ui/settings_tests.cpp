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
};

TEST_F(Settings, OfAFirstStartAreTheDefaults) {
  const Program program;
  EXPECT_EQ(outerSizeOf(program.window()), usual_);
  program.close();
  EXPECT_EQ(storedSettings(), (StoredSettings{{"Window width", storedNumber(usual_.width)},
                                              {"Window height", storedNumber(usual_.height)},
                                              {"Palette size", storedNumber(256)},
                                              {"Blank", {0, 0, 0}},
                                              {"Windows colors", {0}},
                                              {"RGB levels", {6, 7, 6}},
                                              {"Color mode", {4}},
                                              {"Effect", {5}},
                                              {"Selection mode", {0}}}));
}

// A start reads the stored values, and the exit writes them back.
TEST_F(Settings, AreKept) {
  StoredSettings stored{{"Window width", storedNumber(least_.width + 1)},
                        {"Window height", storedNumber(100)},
                        {"Palette size", storedNumber(1000)},
                        {"Blank", {1, 2, 255}},
                        {"Windows colors", {1}},
                        {"RGB levels", {2, 0, 255}},
                        {"Color mode", {8}},
                        {"Effect", {14}},
                        {"Selection mode", {2}}};
  store(stored);
  const Program program;
  EXPECT_EQ(outerSizeOf(program.window()), (Size{least_.width + 1, least_.height}));
  for (std::uint8_t mode = 0; mode < 3; ++mode) {
    EXPECT_EQ(menuBarItem(program, command_id::kFreeSelection + mode).isChecked, mode == 2);
  }
  program.resize({least_.width + 31, least_.height + 17});
  program.close();
  stored["Window width"] = storedNumber(least_.width + 31);
  stored["Window height"] = storedNumber(least_.height + 17);
  EXPECT_EQ(storedSettings(), stored);
}

TEST_F(Settings, FillTheDialogForANewPalette) {
  store({{"Palette size", storedNumber(5000)}, {"Windows colors", {1}}, {"RGB levels", {2, 3, 4}}});
  const Program program;
  program.start(command_id::kNewRgb);
  {
    const Dialog dialog(program, L"New palette properties");
    EXPECT_EQ(dialog.typed(NEW_SIZE), L"1024");
    EXPECT_EQ(dialog.typed(NEW_RED) + dialog.typed(NEW_GREEN) + dialog.typed(NEW_BLUE), L"234");
    EXPECT_EQ(program.ask(dialog.control(NEW_WINDOWS_COLORS), BM_GETCHECK), BST_CHECKED);
    EXPECT_EQ(dialog.typed(NEW_MINIMUM), L"(min. 44)");
    // Even a refused size is stored.
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
