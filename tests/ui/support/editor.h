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

/// The program with a palette file open, which shows the editor.
class Editor : public Program {
 public:
  explicit Editor(std::wstring file, int page = kValuesPage);

  /// The palette's file.
  [[nodiscard]] const std::wstring& file() const { return file_; }
  /// Saves the document, which has this file still, and reads that.
  [[nodiscard]] Palette saved() const;

  [[nodiscard]] int chosenPage() const;
  void choosePage(int page) const;
  /// The part of the main window that the pages have.
  [[nodiscard]] Rect page() const;
  /// How the palette's grid stands on a page that has one, and its window.
  [[nodiscard]] GridLayout grid() const;
  [[nodiscard]] HWND gridWindow() const { return control(L"QuillhueGrid"); }
  /// The middle of an entry's cell, on the screen.
  [[nodiscard]] Point entryPoint(std::int32_t index) const;

  /// Gives an edit field the focus, and types into it in place of what is there.
  void typeInto(HWND field, std::string_view text) const;
  /// Chooses an item of a drop-down list.
  void choose(HWND list, std::size_t item) const;

 private:
  std::wstring file_;
};

/// The content of a palette file.
[[nodiscard]] Palette paletteIn(const std::wstring& file);

}  // namespace quillhue
