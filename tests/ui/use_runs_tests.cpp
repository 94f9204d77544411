#include <chrono>

#include "commands/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/use_test.h"

namespace quillhue {
namespace {

// Events while an image is remapped.
class UseRuns : public UseTest {
 protected:
  static constexpr Size kBig{3000, 2000};

  // Opens a palette and loads an image to be dithered. Modifies the document if `isModified`.
  void prepare(bool isModified) {
    open(twoColors_);
    if (isModified) {
      editor().choosePage(kValuesPage);
      editor().run(command_id::kClear);
      editor().choosePage(kUsePage);
    }
    load(big_);
    editor().click(L"&Dither");
    activate(editor());
  }
  // Starts the run. It handles the messages posted next after the first row.
  void startRun() { editor().post(editor().button(L"&Process"), BM_CLICK); }

  // Two colors far from those of the image, so that a result looks different.
  const Palette twoColors_ = paletteOf(std::vector<PaletteEntry>{{255, 0, 255}, {0, 255, 255}});
  const std::wstring big_ = indexedFile("big.bmp", kBig);
};

TEST_F(UseRuns, EndWithTheWindow) {
  prepare(false);
  startRun();
  editor().post(editor().window(), WM_CLOSE);
  EXPECT_EQ(editor().awaitEnd(), 0U);
}

TEST_F(UseRuns, WaitForTheQuestionBeforeTheWindowCloses) {
  for (const int answer : {IDCANCEL, IDYES}) {
    SCOPED_TRACE(answer);
    prepare(true);
    startRun();
    editor().post(editor().window(), WM_CLOSE);
    {
      const Dialog question(editor(), L"Warning");
      EXPECT_EQ(controls(), "---x-------");
      // The view shows the first row, and below it the loaded image.
      editor().await("the first row", [&] {
        const PaletteEntry shown = pixelOf(view(), {2, 0});
        return shown == PaletteEntry{} || shown == twoColors_.entry(1);
      });
      awaitShown({2, 40}, imageColor({2, 40}));
      question.answer(answer);
    }
    if (answer == IDCANCEL) {
      editor().await("the result", [&] { return isUsable(L"&Save as..."); });
      editor().run(command_id::kSave);
      EXPECT_EQ(result(), toolsResult(big_, L"dither"));
    } else {
      EXPECT_EQ(editor().awaitEnd(), 0U);
      EXPECT_EQ(paletteIn(editor().file()).entry(0), PaletteEntry{});
    }
  }
}

TEST_F(UseRuns, StopWhereAnotherPaletteIsOpened) {
  prepare(false);
  startRun();
  editor().drop({paletteFile("other.pal", brightPalette(20))});
  editor().awaitTitle(L"Quillhue - other.pal");
  editor().await("the end of the run", [&] { return isUsable(L"&Load..."); });
  // The finished rows are kept.
  EXPECT_TRUE(isUsable(L"&Save as..."));
  EXPECT_EQ(editor().chosenPage(), kUsePage);
  // A file begins with the last row. In the tool's file, a pixel has half a byte.
  const std::string partial = result();
  const std::string first = partial.substr(partial.size() - kBig.width);
  EXPECT_NE(first, std::string(kBig.width, '\0'));
  EXPECT_EQ(partial.substr(1078, kBig.width), std::string(kBig.width, '\0'));
  runTool({L"remap", L"--force", L"--mode", L"dither", big_, paletteFile("other.pal", twoColors_),
           folder_.name("whole.bmp")});
  const std::string whole = folder_.contentOf("whole.bmp");
  for (std::size_t pair = 0; pair < kBig.width / 2; ++pair) {
    ASSERT_EQ(whole[whole.size() - kBig.width / 2 + pair], first[2 * pair] << 4 | first[2 * pair + 1]) << pair;
  }
}

TEST_F(UseRuns, LeaveTheWindowAlive) {
  prepare(false);
  load(indexedFile("huge.bmp", {4000, 3000}));
  startRun();
  HWND loads = editor().button(L"&Load...");
  editor().await("the run", [&] { return IsWindowEnabled(loads) == 0; });
  int answers = 0;
  for (; IsWindowEnabled(loads) == 0; ++answers) {
    const auto start = std::chrono::steady_clock::now();
    editor().ask(editor().window(), WM_NULL);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    Sleep(1);
  }
  EXPECT_GT(answers, 10);
  EXPECT_TRUE(isUsable(L"&Save as..."));
}

}  // namespace
}  // namespace quillhue
