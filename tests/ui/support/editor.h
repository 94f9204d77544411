#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/palette.h"
#include "ui/logic/grid_layout.h"
#include "ui/support/program.h"
#include "ui/win32/system.h"

namespace quillhue {

/// The pages of the editor.
inline constexpr int kValuesPage = 0;
inline constexpr int kEffectsPage = 1;
inline constexpr int kUsePage = 2;

/// The program with an open palette file.
class Editor : public Program {
 public:
  explicit Editor(std::wstring file, int page = kValuesPage);

  /// The palette's file.
  [[nodiscard]] const std::wstring& file() const { return file_; }
  /// Saves the document, which must still have this file, and reads the file.
  [[nodiscard]] Palette saved() const;

  [[nodiscard]] int chosenPage() const;
  void choosePage(int page) const;
  /// Returns the area of the pages in the main window.
  [[nodiscard]] Rect page() const;
  /// Return the layout of the palette's grid and its window, on a page with a grid.
  [[nodiscard]] GridLayout grid() const;
  [[nodiscard]] HWND gridWindow() const { return control(L"QuillhueGrid"); }
  /// Returns the middle of an entry's cell in screen coordinates.
  [[nodiscard]] Point entryPoint(std::int32_t index) const;

  /// Gives the focus to an edit field and replaces its text by typing.
  void typeInto(HWND field, std::string_view text) const;
  /// Chooses an item of a drop-down list.
  void choose(HWND list, std::size_t item) const;

 private:
  std::wstring file_;
};

/// Returns the palette in a file.
[[nodiscard]] Palette paletteIn(const std::wstring& file);

}  // namespace quillhue
