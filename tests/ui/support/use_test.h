#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "ui/support/editor.h"

namespace quillhue {

/// A test of the page "Use Palette".
class UseTest : public EditorTest {
 protected:
  /// The page's edit fields, in their order.
  enum class Field : std::uint8_t { color, width, height };

  /// The index of a pixel of the images that have a palette.
  static constexpr std::uint8_t indexAt(Point point) {
    return static_cast<std::uint8_t>((point.x + 2 * point.y) % 200);
  }
  static constexpr Size kSize{150, 70};

  UseTest();

  /// A file of an image of that size in the colors of imageColors_, or of one in all colors.
  [[nodiscard]] std::wstring indexedFile(const std::string& name, Size size) const;
  [[nodiscard]] std::wstring directFile(const std::string& name, Size size) const;

  Editor& open(const Palette& palette);
  [[nodiscard]] Editor& editor() { return *editor_; }
  [[nodiscard]] HWND view() const { return editor_->control(L"QuillhueImage"); }
  [[nodiscard]] HWND field(Field field) const;
  [[nodiscard]] bool isUsable(const wchar_t* button) const { return IsWindowEnabled(editor_->button(button)) != 0; }
  [[nodiscard]] bool showsImage() const;
  /// Waits until the view shows a color there.
  void awaitShown(Point point, PaletteEntry color) const;

  void load(const std::wstring& file) const;
  /// Presses "Process", and waits until the run is over.
  void process() const;
  /// What "Save as" writes.
  [[nodiscard]] std::string result() const;
  /// What the tool makes of the image with the palette that was opened.
  [[nodiscard]] std::string toolsResult(const std::wstring& image, const std::vector<std::wstring>& options) const;

  const Palette imageColors_ = brightPalette(256);
  std::wstring indexed_;
  std::wstring direct_;

 private:
  std::unique_ptr<Editor> editor_;
};

}  // namespace quillhue
