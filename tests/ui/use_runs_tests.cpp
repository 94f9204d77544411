#include <chrono>

#include "commands/command_ids.h"
#include "ui/support/input.h"
#include "ui/support/use_test.h"

namespace quillhue {
namespace {

// What comes while an image is remapped.
class UseRuns : public UseTest {
 protected:
  static constexpr Size kBig{3000, 2000};

  // Opens a palette and an image that is to be dithered; the document is modified if that is wanted.
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
  // Starts the run. What is posted next is found by it after the first row.
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
  for (const int answer : {IDCANCEL, IDNO, IDYES}) {
    SCOPED_TRACE(answer);
    prepare(true);
    startRun();
    editor().post(editor().window(), WM_CLOSE);
    {
      const Dialog question(editor(), L"Warning");
      EXPECT_EQ(controls(), "---x-------");
      // The first row is there, and below it the image that was loaded.
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
      continue;
    }
    EXPECT_EQ(editor().awaitEnd(), 0U);
    Palette expected = twoColors_;
    if (answer == IDYES) {
      expected.setEntry(0, {});
    }
    EXPECT_EQ(show(paletteIn(editor().file())), show(expected));
  }
}

TEST_F(UseRuns, StopWhereAnotherPaletteIsOpened) {
  prepare(false);
  startRun();
  editor().drop({paletteFile("other.pal", brightPalette(20))});
  editor().awaitTitle(L"Quillhue - other.pal");
  editor().await("the end of the run", [&] { return isUsable(L"&Load..."); });
  // What was done is kept.
  EXPECT_TRUE(isUsable(L"&Save as..."));
  EXPECT_EQ(editor().chosenPage(), kUsePage);
  const std::string partial = result();
  runTool({L"remap", L"--force", L"--mode", L"dither", big_, paletteFile("other.pal", twoColors_),
           folder_.name("whole.bmp")});
  // Of each row the tool's file has half a byte a pixel, the other one a byte.
  constexpr std::size_t kPackedRow = 1500;
  const std::string whole = folder_.contentOf("whole.bmp");
  const std::string packed = whole.substr(whole.size() - kPackedRow, kBig.width / 2);
  std::string row;
  for (const char pair : packed) {
    row += {static_cast<char>(pair >> 4 & 15), static_cast<char>(pair & 15)};
  }
  EXPECT_EQ(partial.substr(partial.size() - kBig.width), row);
  EXPECT_NE(row, std::string(kBig.width, '\0'));
  // The last row of the image is the first one of the file.
  EXPECT_EQ(partial.substr(1078, kBig.width), std::string(kBig.width, '\0'));
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
