#include <array>

#include "commands/command_ids.h"
#include "core/utf8.h"
#include "formats/hex_color.h"
#include "ui/support/input.h"
#include "ui/support/ui_test.h"
#include "ui/win32/clipboard.h"

namespace quillhue {
namespace {

/// Tests the current entry as the status bar shows it, and the keys and typed numbers that change it.
class CurrentEntry : public UiTest {
 protected:
  void expectStatus(const std::wstring& text) const {
    editor().awaitEqual(text, [this] { return statusText(editor(), 1); });
  }
  void expectEntry(std::int32_t index, PaletteEntry color) const {
    expectStatus(std::to_wstring(index) + L": " + fromUtf8(hexTextOf(color)));
  }
  void expectEntry(std::int32_t index) const { expectEntry(index, palette_.entry(index)); }

  const Palette palette_ = brightPalette(240);
};

TEST_F(CurrentEntry, IsShownInTheStatusBar) {
  const Editor& editor = open(palette_);
  expectEntry(0);
  clickAt(editor, editor.entryPoint(29));
  expectEntry(29);
  // Ctrl+Home and Ctrl+End do the same as Home and End.
  for (const auto& [key, index] : {std::pair{VK_RIGHT, 30}, {VK_END, 239}, {VK_HOME, 0}}) {
    pressKey(key, key == VK_RIGHT ? std::vector<int>{} : std::vector<int>{VK_CONTROL});
    expectEntry(index);
  }
  editor.typeInto(findControls(editor.window(), L"Edit")[0], "200");
  const PaletteEntry first = palette_.entry(0);
  expectEntry(0, {200, first.green, first.blue});
  editor.run(command_id::kUndo);
  expectEntry(0);
  clickAt(editor, editor.entryPoint(29));
  pressKey('Z', {VK_CONTROL, VK_SHIFT});
  editor.run(command_id::kUndo);
  expectEntry(29);

  // The other tab has a current entry of its own, which shows its preview.
  pressKey(VK_TAB, {VK_CONTROL});
  expectStatus(L"");
  editor.awaitEqual(editor.gridWindow(), [&] { return focusOf(editor); });
  clickAt(editor, editor.entryPoint(3));
  expectEntry(3);
  // The effect adds to the brightness.
  editor.choose(editor.control(L"ComboBox"), 3);
  editor.typeInto(findControls(editor.window(), L"Edit")[0], "10");
  const auto [red, green, blue] = palette_.entry(3);
  const auto brighter = [](std::uint8_t value) { return static_cast<std::uint8_t>(value + 10); };
  expectEntry(3, {brighter(red), brighter(green), brighter(blue)});
  editor.click(L"Pre&view");
  expectEntry(3);
  pressKey(VK_TAB, {VK_CONTROL});
  expectStatus(L"");
  EXPECT_EQ(editor.chosenPage(), kUsePage);
  pressKey(VK_TAB, {VK_CONTROL});
  expectEntry(29);
  pressKey(VK_TAB, {VK_CONTROL, VK_SHIFT});
  expectStatus(L"");
  EXPECT_EQ(editor.chosenPage(), kUsePage);
}

TEST_F(CurrentEntry, IsReachedByTypingItsNumber) {
  for (const int page : {kValuesPage, kEffectsPage}) {
    const Editor& editor = open(palette_, page);
    tabTo(editor, editor.gridWindow());
    type("12");
    expectStatus(L"Go to 12");
    pressKey(VK_RETURN);
    expectEntry(12);
    type("20");
    // After a pause.
    expectEntry(20);
    // The entry does not exist. Other keys discard the digits.
    type("999");
    expectStatus(L"Go to 999");
    pressKey(VK_RETURN);
    expectEntry(20);
    type("7");
    expectStatus(L"Go to 7");
    pressKey(VK_ESCAPE);
    expectEntry(20);
    type("7");
    expectStatus(L"Go to 7");
    pressKey(VK_RIGHT);
    expectEntry(21);
  }
}

TEST_F(CurrentEntry, IsCopiedAndPastedAsText) {
  const Editor& editor = open(palette_);
  const auto put = [&](const std::wstring& text) {
    ClipboardAccess clipboard(editor.window());
    clipboard.empty();
    EXPECT_TRUE(clipboard.putText(text));
  };
  editor.run(command_id::kCopy);
  EXPECT_EQ(ClipboardAccess(nullptr).text(100), fromUtf8(hexTextOf(palette_.entry(0))));
  EXPECT_EQ(ClipboardAccess(nullptr).text(6), std::nullopt);
  put(L"#102030, a0b0c0\n");
  editor.run(command_id::kPaste);
  expectEntry(0, {0x10, 0x20, 0x30});
  editor.choosePage(kEffectsPage);
  editor.drag({editor.entryPoint(5), editor.entryPoint(7)});
  editor.run(command_id::kPaste);
  put(L"#FFFFFF is white");
  editor.run(command_id::kPaste);
  const Palette saved = editor.saved();
  const std::array<PaletteEntry, 3> expected{{{0x10, 0x20, 0x30}, {0xA0, 0xB0, 0xC0}, palette_.entry(7)}};
  for (std::int32_t i = 0; i < 3; ++i) {
    EXPECT_EQ(saved.entry(5 + i), expected[static_cast<std::size_t>(i)]) << i;
  }
  editor.run(command_id::kCopy);
  EXPECT_EQ(ClipboardAccess(nullptr).text(100), L"#102030\r\n#A0B0C0\r\n" + fromUtf8(hexTextOf(palette_.entry(7))));
}

}  // namespace
}  // namespace quillhue
