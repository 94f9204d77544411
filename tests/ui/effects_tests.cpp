#include <algorithm>

#include "commands/command_ids.h"
#include "effects/effects.h"
#include "ui/support/ui_test.h"

namespace quillhue {
namespace {

class Effects : public UiTest {};

TEST_F(Effects, AreShownBeforeTheyAreApplied) {
  const auto all = effects();
  const auto negative =
      std::ranges::find(all, std::string_view("negative"), [](const auto* effect) { return effect->name; });
  ASSERT_NE(negative, all.end());
  store({{"Effect", {static_cast<std::uint8_t>(negative - all.begin())}}});
  const Palette palette = brightPalette(1);
  const PaletteEntry color = palette.entry(0);
  const PaletteEntry preview{static_cast<std::uint8_t>(255 - color.red), static_cast<std::uint8_t>(255 - color.green),
                             static_cast<std::uint8_t>(255 - color.blue)};
  const Editor& editor = open(palette, kEffectsPage);
  editor.run(command_id::kSelectAll);
  HWND value = editor.control(L"Edit");
  const auto enter = [&](const wchar_t* text) { editor.ask(value, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)); };
  const auto press = [&](const wchar_t* text) { editor.ask(editor.button(text), BM_CLICK); };
  const auto awaitShown = [&](PaletteEntry expected) {
    editor.awaitEqual(expected, [&] { return pixelOf(editor.gridWindow(), middleOf(editor.grid().cellBox(0))); });
  };
  // The effect's default value changes nothing. A value outside the range counts as the nearest one inside.
  enter(L"0");
  awaitShown(preview);
  enter(L"9999");
  awaitShown(color);
  enter(L"0");
  // The document is unchanged.
  EXPECT_EQ(show(editor.saved()), show(palette));
  press(L"Pre&view");
  awaitShown(color);
  press(L"Pre&view");
  awaitShown(preview);
  press(L"Re&set");
  awaitShown(color);
  EXPECT_EQ(textOf(value), L"255");
  enter(L"0");
  press(L"&Apply");
  Palette applied = palette;
  applied.setEntry(0, preview);
  EXPECT_EQ(show(editor.saved()), show(applied));
  editor.run(command_id::kUndo);
  EXPECT_EQ(show(editor.saved()), show(palette));
}

TEST_F(Effects, PasteShowsWhatTheClipboardHoldsNow) {
  constexpr std::uint8_t kPaste = 13;
  store({{"Effect", {kPaste}}});
  const Editor& editor = open(brightPalette(2), kEffectsPage);
  editor.run(command_id::kSelectAll);
  editor.ask(editor.control(L"Edit"), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"100"));
  for (const PaletteEntry color : {PaletteEntry{1, 2, 3}, {200, 100, 7}}) {
    const Editor other(paletteFile("other.pal", createPalette(1, color)));
    other.run(command_id::kCopy);
    SetForegroundWindow(editor.window());
    editor.awaitEqual(color, [&] { return pixelOf(editor.gridWindow(), middleOf(editor.grid().cellBox(0))); });
  }
}

TEST_F(Effects, ShowTheirLongestNumbers) {
  constexpr std::uint8_t kRotate = 12;
  store({{"Effect", {kRotate}}});
  const Editor editor(paletteFile("large.gpl", brightPalette(1000)), kEffectsPage);
  HWND field = editor.control(L"Edit");
  editor.ask(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"-1000"));
  const auto left = [&](WPARAM character) {
    return static_cast<std::int16_t>(LOWORD(editor.ask(field, EM_POSFROMCHAR, character)));
  };
  const std::int32_t digit = left(4) - left(3);
  EXPECT_GE(left(0), 0);
  EXPECT_LE(left(4) + digit, clientSize(field).width);
}

}  // namespace
}  // namespace quillhue
