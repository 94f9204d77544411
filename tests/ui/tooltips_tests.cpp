#include "ui/support/input.h"
#include "ui/support/use_test.h"

namespace quillhue {
namespace {

/// The tooltips of the grid's cells and of the image.
class Tooltips : public UseTest {
 protected:
  // Returns the text of the visible tooltip, or an empty text.
  [[nodiscard]] static std::wstring shown(const Program& program) {
    HWND tip = program.topWindow(TOOLTIPS_CLASSW);
    return tip == nullptr ? L"" : textOf(tip);
  }
  void expectTooltip(const std::wstring& text) const {
    editor().awaitEqual(text, [this] { return shown(editor()); });
  }
};

TEST_F(Tooltips, FollowThePointerOverTheCells) {
  const Editor& editor = UiTest::open(brightPalette(15), kValuesPage);
  activate(editor);
  moveTo(editor, editor.entryPoint(3));
  expectTooltip(L"3: #2B3C1F\nred 43, green 60, blue 31");
  HWND focused = focusOf(editor);
  moveTo(editor, editor.entryPoint(4));
  expectTooltip(L"4: #2C3C26\nred 44, green 60, blue 38");
  EXPECT_EQ(focusOf(editor), focused);
  // There is no entry at this point, and a press goes to the grid.
  moveTo(editor, editor.entryPoint(15));
  expectTooltip(L"");
  moveTo(editor, editor.entryPoint(5));
  expectTooltip(L"5: #2D3C2D\nred 45, green 60, blue 45");
  press();
  expectTooltip(L"");
  editor.awaitEqual(L"5: #2D3C2D", [&] { return statusText(editor, 1); });
  release();
  // The numbers are those of the color model.
  editor.choose(editor.control(L"ComboBox"), 3);
  moveTo(editor, editor.entryPoint(6));
  expectTooltip(L"6: #2E3C34\nhue 145, saturation 59, value 60");
  // A menu hides it.
  pressKey(VK_F10);
  expectTooltip(L"");
  pressKey(VK_ESCAPE);

  editor.choosePage(kEffectsPage);
  clickAt(editor, editor.entryPoint(7));
  // The plain negative.
  editor.choose(editor.control(L"ComboBox"), 10);
  editor.typeInto(editor.control(L"Edit"), "0");
  moveTo(editor, editor.entryPoint(8));
  expectTooltip(L"8: #303C42\nred 48, green 60, blue 66");
  moveTo(editor, editor.entryPoint(7));
  expectTooltip(L"7: #2F3C3B\nred 47, green 60, blue 59\nPreview: #D0C3C4\nred 208, green 195, blue 196");
}

TEST_F(Tooltips, NameTheChannels) {
  const Editor& editor = UiTest::open(brightPalette(15), kValuesPage);
  activate(editor);
  const Point field = middleOf(boxOnScreen(editor.control(L"Edit")));
  moveTo(editor, field);
  expectTooltip(L"red");
  editor.choose(editor.control(L"ComboBox"), 3);
  moveTo(editor, editor.entryPoint(3));
  moveTo(editor, field);
  expectTooltip(L"hue");
}

TEST_F(Tooltips, TellPixelsOfTheImage) {
  open(imageColors_);
  load(indexed_);
  activate(editor());
  const Point pixel{20, 30};
  moveTo(editor(), onScreen(view(), pixel));
  expectTooltip(L"20, 30: index " + std::to_wstring(indexAt(pixel)) + L", #783CAC");
  moveTo(editor(), onScreen(view(), {kSize.width + 5, 30}));
  expectTooltip(L"");
  load(direct_);
  moveTo(editor(), onScreen(view(), pixel));
  editor().await("the color", [&] { return shown(editor()).starts_with(L"20, 30: #"); });
}

}  // namespace
}  // namespace quillhue
