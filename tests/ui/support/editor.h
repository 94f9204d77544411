#pragma once

#include <windows.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/palette.h"
#include "ui/logic/grid_layout.h"
#include "ui/support/program.h"
#include "ui/support/ui_test.h"

namespace quillhue {

/// The pages of the editor.
inline constexpr int kValuesPage = 0;
inline constexpr int kEffectsPage = 1;
inline constexpr int kUsePage = 2;

/// The program with a palette file open, which shows the editor.
class Editor : public Program {
 public:
  explicit Editor(const std::wstring& file, int page = kValuesPage);

  [[nodiscard]] const std::wstring& palette() const { return palette_; }
  /// Takes all steps back, and tells how many there were.
  [[nodiscard]] int undoAll() const;

  /// Waits until all input so far has had its effect: a program paints when there is none left.
  void awaitInput() const;

  /// The part of the main window that the pages have.
  [[nodiscard]] Rect page() const;
  /// How the palette's grid stands on a page that has one, and its window.
  [[nodiscard]] GridLayout grid() const;
  [[nodiscard]] HWND gridWindow() const;
  /// The middle of an entry's cell, on the screen.
  [[nodiscard]] Point entryPoint(std::int32_t index) const;
  /// Clicks on the entry, and waits until all is done.
  void clickEntry(std::int32_t index) const;
  /// What the grid shows of an entry.
  [[nodiscard]] PaletteEntry shownColor(std::int32_t index) const;
  void awaitShownColor(std::int32_t index, PaletteEntry color) const;
  /// Waits until the grid shows the palette.
  void awaitShown(const Palette& palette) const;

  /// A visible control, which has to be there.
  [[nodiscard]] HWND control(const wchar_t* className, const wchar_t* text = nullptr) const;
  [[nodiscard]] HWND button(const wchar_t* text) const { return control(L"Button", text); }
  /// Presses and releases the mouse on a control's middle, and waits until all is done.
  void click(HWND control) const;
  /// Presses the mouse at the first point and releases it at the last. Each move has its effect.
  void drag(std::initializer_list<Point> points) const;
  void awaitText(HWND control, const std::wstring& text) const;
  /// Gives an edit field the focus, and types into it in place of what is there.
  void typeInto(HWND field, std::string_view text) const;
  /// Gives a control the focus, as the Tab key does.
  void focus(HWND control) const;
  /// Chooses an item of a drop-down list.
  void choose(HWND list, int item) const;

 private:
  std::wstring palette_;
};

class EditorTest : public UiTest {
 protected:
  /// What is saved now.
  [[nodiscard]] static Palette saved(const Editor& editor) { return savedPalette(editor, editor.palette()); }
};

/// The middle of a window, on the screen.
[[nodiscard]] Point middleOf(HWND window);

/// The colors of the palette on the clipboard, and the bytes of the bitmap there; empty without one.
[[nodiscard]] std::vector<PaletteEntry> clipboardPalette();
[[nodiscard]] std::string clipboardBitmap();
/// Put there by this program.
void putOnClipboard(const std::vector<PaletteEntry>& colors);
void putOnClipboard(std::string_view bitmap);
void emptyClipboard();

/// Runs the command-line tool that stands beside the program; it has to do what it is told.
void runTool(const std::vector<std::wstring>& arguments);

}  // namespace quillhue
