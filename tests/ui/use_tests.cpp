#include <windows.h>

#include "formats/files.h"
#include "support/bitmaps.h"
#include "ui/support/input.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Use : public UiTest {
 protected:
  Use() : palette_(paletteFile("own.pal", brightPalette(12))) {}

  static void openPage(const Program& program) {
    program.await("the editor", [&] { return tabControl(program); });
    choosePage(program, 2);
  }
  static HWND button(const Program& program, const wchar_t* text) {
    HWND found = findControl(program.window(), L"Button", text);
    return found != nullptr ? found : throw ProgramError("no button " + narrow(text));
  }
  static bool isUsable(const Program& program, const wchar_t* text) {
    return IsWindowEnabled(button(program, text)) != 0;
  }
  static void load(const Program& program, const std::wstring& image) {
    program.post(button(program, L"&Load..."), BM_CLICK);
    chooseFile(program, L"Open", image);
    program.await("the image", [&] { return findControl(program.window(), L"Static", L"Image available"); });
  }
  [[nodiscard]] std::wstring image(std::uint32_t width, std::uint32_t height) const {
    std::vector<ColorWord> pixels(std::size_t{width} * height);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
      pixels[i] = static_cast<ColorWord>(i * 2'654'435'761U >> 8U & 0xFFFFFFU);
    }
    return folder_.file("image.bmp", bitmapOf(width, 24, pixels));
  }
  /// What the tool makes of it.
  [[nodiscard]] std::string remapped(const std::wstring& image, const std::wstring& mode) const {
    const std::wstring tool = Program::file().substr(0, Program::file().find_last_of(L"\\/") + 1) + L"quillhue-cli.exe";
    std::wstring line = L'"' + tool + L"\" remap \"" + image + L"\" \"" + palette_ + L"\" \"" +
                        folder_.name("tool.bmp") + L"\" --force --mode " + mode;
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION made{};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr, &start,
                       &made) == 0) {
      throw ProgramError("can't start " + narrow(line));
    }
    WaitForSingleObject(made.hProcess, 10'000);
    CloseHandle(made.hThread);
    CloseHandle(made.hProcess);
    return folder_.contentOf("tool.bmp");
  }

  std::wstring palette_;
};

TEST_F(Use, OffersWhatTheImageAllows) {
  Program program({palette_});
  openPage(program);
  EXPECT_NE(findControl(program.window(), L"Static", L"No image"), nullptr);
  for (const wchar_t* text : {L"&Maintain mapping", L"&Nearest match", L"&Dither", L"&Process", L"&Save as...",
                              L"Protect &color:", L"Protect gr&id:"}) {
    EXPECT_FALSE(isUsable(program, text)) << narrow(text);
  }
  load(program, image(20, 10));
  EXPECT_FALSE(isUsable(program, L"&Maintain mapping"));
  EXPECT_EQ(program.ask(button(program, L"&Nearest match"), BM_GETCHECK), BST_CHECKED);
  for (const wchar_t* text : {L"&Nearest match", L"&Dither", L"&Process"}) {
    EXPECT_TRUE(isUsable(program, text)) << narrow(text);
  }
  EXPECT_FALSE(isUsable(program, L"Protect &color:"));
  program.ask(button(program, L"&Dither"), BM_CLICK);
  EXPECT_TRUE(isUsable(program, L"Protect &color:"));
  EXPECT_TRUE(isUsable(program, L"Protect gr&id:"));
  const auto usableFields = [&] {
    std::string result;
    for (HWND field : findControls(program.window(), L"Edit")) {
      result += IsWindowEnabled(field) != 0 ? '1' : '0';
    }
    return result;
  };
  EXPECT_EQ(usableFields(), "000");
  program.ask(button(program, L"Protect &color:"), BM_CLICK);
  EXPECT_EQ(usableFields(), "100");
  program.ask(button(program, L"Protect gr&id:"), BM_CLICK);
  EXPECT_EQ(usableFields(), "111");
  program.ask(button(program, L"&Nearest match"), BM_CLICK);
  EXPECT_EQ(usableFields(), "000");
}

TEST_F(Use, SavesWhatTheToolMakes) {
  const std::wstring picture = image(61, 43);
  Program program({palette_});
  openPage(program);
  load(program, picture);
  const struct {
    const wchar_t* button;
    const wchar_t* mode;
  } kModes[] = {{L"&Nearest match", L"nearest"}, {L"&Dither", L"dither"}};
  for (const auto& [text, mode] : kModes) {
    SCOPED_TRACE(narrow(mode));
    program.ask(button(program, text), BM_CLICK);
    program.ask(button(program, L"&Process"), BM_CLICK);
    program.await("the result", [&] { return isUsable(program, L"&Save as..."); });
    program.post(button(program, L"&Save as..."), BM_CLICK);
    const std::string file = "by " + narrow(mode) + ".bmp";
    chooseFile(program, L"Save As", folder_.name(file));
    program.await("the file", [&] { return fileExists(folder_.name(file)) && IsWindowEnabled(program.window()) != 0; });
    EXPECT_TRUE(folder_.contentOf(file) == remapped(picture, mode));
  }
}

TEST_F(Use, EndsARunWhenTheWindowIsClosed) {
  Program program({palette_});
  openPage(program);
  load(program, image(3000, 2000));
  program.ask(button(program, L"&Dither"), BM_CLICK);
  program.post(button(program, L"&Process"), BM_CLICK);
  program.await("the run", [&] { return !isUsable(program, L"&Process"); });
  program.post(program.window(), WM_CLOSE);
  EXPECT_EQ(program.awaitEnd(), 0U);
}

}  // namespace
}  // namespace quillhue
