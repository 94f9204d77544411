#include "ui/support/use_test.h"

#include <random>

#include "formats/bitmap_writer.h"
#include "formats/work_image.h"
#include "support/bitmaps.h"
#include "ui/win32/clipboard.h"

namespace quillhue {

std::wstring UseTest::indexedFile(const std::string& name, Size size) const {
  std::vector<std::uint8_t> rows;
  for (std::int32_t y = 0; y < size.height; ++y) {
    for (std::int32_t x = 0; x < size.width; ++x) {
      rows.push_back(indexAt({x, y}));
    }
    rows.resize(paddedRowLength(size.width) * static_cast<std::size_t>(y + 1));
  }
  return folder_.file(name, composeBitmap({size.width, size.height, rows}, imageColors_, {}));
}

std::wstring UseTest::directFile() const {
  std::mt19937 random(7);
  std::vector<ColorWord> words(std::size_t{kSize.width} * kSize.height);
  for (ColorWord& word : words) {
    word = random() % 0x1000000;
  }
  return folder_.file("direct.bmp", bitmapOf(kSize.width, 24, words));
}

HWND UseTest::field(Field field) const {
  return findControls(editor().window(), L"Edit").at(static_cast<std::size_t>(field));
}

bool UseTest::showsImage() const { return findControl(editor().window(), L"Static", L"Image available") != nullptr; }

void UseTest::awaitShown(Point point, PaletteEntry color) const {
  editor().await("the color in view", [&] { return pixelOf(view(), point) == color; });
}

void UseTest::load(const std::wstring& file) const {
  editor().drop({file}, view());
  editor().awaitInput();
  editor().await("the image", [&] { return showsImage(); });
}

void UseTest::process() const {
  editor().click(L"&Process");
  editor().await("the result", [&] { return isUsable(L"&Save as..."); });
}

std::string UseTest::result(const std::wstring& extension) const {
  const std::wstring file = folder_.name(L"result" + extension);
  DeleteFileW(file.c_str());
  editor().click(L"&Save as...");
  // The dialog appends the extension of the chosen type, initially that of a bitmap.
  chooseFile(editor(), L"Save As", folder_.name("result"), extension == L".png" ? 1 : -1);
  editor().await("the file", [&] { return fileExists(file); });
  editor().awaitInput();
  return folder_.contentOf(L"result" + extension);
}

std::string UseTest::toolsResult(const std::wstring& image, const std::wstring& mode,
                                 const std::vector<std::wstring>& options, const std::wstring& extension) const {
  std::vector<std::wstring> arguments{
      L"remap", L"--force", L"--mode", mode, image, editor().file(), folder_.name(L"tool" + extension)};
  arguments.insert(arguments.end(), options.begin(), options.end());
  runTool(arguments);
  return folder_.contentOf(L"tool" + extension);
}

std::string UseTest::controls() const {
  std::string states;
  for (HWND control : findControls(editor().window())) {
    const std::wstring kind = windowClass(control);
    if (kind == L"Button" || kind == L"Edit") {
      const bool isChosen = kind == L"Button" && editor().ask(control, BM_GETCHECK) == BST_CHECKED;
      states += IsWindowEnabled(control) != 0 ? "+X"[isChosen] : "-x"[isChosen];
    }
  }
  return states;
}

std::string UseTest::clipboardBitmap() const {
  const auto bytes = ClipboardAccess(nullptr).bytes(CF_DIB).value_or(Bytes{});
  return {bytes.begin(), bytes.end()};
}

void UseTest::putOnClipboard(std::string_view bitmap) const {
  ClipboardAccess clipboard(editor().window());
  clipboard.empty();
  EXPECT_TRUE(clipboard.put(CF_DIB, Bytes(bitmap.begin(), bitmap.end())));
}

}  // namespace quillhue
