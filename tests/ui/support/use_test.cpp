#include "ui/support/use_test.h"

#include <random>

#include "formats/bitmap_writer.h"
#include "support/bitmaps.h"
#include "ui/support/drop.h"
#include "ui/support/input.h"

namespace quillhue {

UseTest::UseTest() : indexed_(indexedFile("indexed.bmp", kSize)), direct_(directFile("direct.bmp", kSize)) {}

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

std::wstring UseTest::directFile(const std::string& name, Size size) const {
  std::mt19937 random(7);
  std::vector<ColorWord> words(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
  for (ColorWord& word : words) {
    word = random() % 0x1000000;
  }
  return folder_.file(name, bitmapOf(static_cast<std::uint32_t>(size.width), 24, words));
}

Editor& UseTest::open(const Palette& palette) {
  editor_.reset();
  editor_ = std::make_unique<Editor>(paletteFile("own.pal", palette), kUsePage);
  return *editor_;
}

HWND UseTest::field(Field field) const {
  return findControls(editor_->window(), L"Edit").at(static_cast<std::size_t>(field));
}

bool UseTest::showsImage() const { return findControl(editor_->window(), L"Static", L"Image available") != nullptr; }

void UseTest::awaitShown(Point point, PaletteEntry color) const {
  editor_->await("the color in view", [&] { return pixelOf(view(), point) == color; });
}

void UseTest::load(const std::wstring& file) const {
  dropFiles(*editor_, {file}, view());
  editor_->awaitInput();
  editor_->await("the image", [&] { return showsImage(); });
}

void UseTest::process() const {
  editor_->click(editor_->button(L"&Process"));
  editor_->await("the result", [&] { return isUsable(L"&Save as..."); });
}

std::string UseTest::result() const {
  DeleteFileW(folder_.name("result.bmp").c_str());
  clickAt(*editor_, middleOf(editor_->button(L"&Save as...")));
  chooseFile(*editor_, L"Save As", folder_.name("result"));
  editor_->await("the file", [&] { return fileExists(folder_.name("result.bmp")); });
  editor_->awaitInput();
  return folder_.contentOf("result.bmp");
}

std::string UseTest::toolsResult(const std::wstring& image, const std::vector<std::wstring>& options) const {
  std::vector<std::wstring> arguments{L"remap", L"--force", image, editor_->palette(), folder_.name("tool.bmp")};
  arguments.insert(arguments.end(), options.begin(), options.end());
  runTool(arguments);
  return folder_.contentOf("tool.bmp");
}

}  // namespace quillhue
