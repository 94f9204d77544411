#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/support/ui_test.h"
#include "ui/win32/system.h"

namespace quillhue {

/// A test of the page "Use Palette".
class UseTest : public UiTest {
 protected:
  /// The page's edit fields in order.
  enum class Field : std::uint8_t { color, width, height };

  /// Returns the index of a pixel in the images with a palette.
  static constexpr std::uint8_t indexAt(Point point) {
    return static_cast<std::uint8_t>((point.x + 2 * point.y) % 200);
  }
  static constexpr Size kSize{150, 70};

  /// Write an image file and return its name: an image of this size in the colors of imageColors_, or one of kSize in
  /// true colors.
  [[nodiscard]] std::wstring indexedFile(const std::string& name, Size size) const;
  [[nodiscard]] std::wstring directFile() const;

  void open(const Palette& palette) { UiTest::open(palette, kUsePage); }
  [[nodiscard]] HWND view() const { return editor().control(L"QuillhueImage"); }
  [[nodiscard]] HWND field(Field field) const;
  [[nodiscard]] bool isUsable(const wchar_t* button) const { return IsWindowEnabled(editor().button(button)) != 0; }
  /// Returns the states of Load, the three modes, Protect color and its field, Protect grid and its two fields,
  /// Process, Save as: + or - for enabled or disabled, X or x if also chosen.
  [[nodiscard]] std::string controls() const;
  [[nodiscard]] bool showsImage() const;
  /// Waits until the view shows this color at the point.
  void awaitShown(Point point, PaletteEntry color) const;
  /// Returns the color of the loaded image at the point.
  [[nodiscard]] PaletteEntry imageColor(Point point) const { return imageColors_.entry(indexAt(point)); }

  void load(const std::wstring& file) const;
  /// Presses "Process" and waits for the end of the run.
  void process() const;
  /// Saves the result with "Save as" in a file of this type, and returns its content.
  [[nodiscard]] std::string result(const std::wstring& extension = L".bmp") const;
  /// Returns the tool's result for this image and the open palette.
  [[nodiscard]] std::string toolsResult(const std::wstring& image, const std::wstring& mode,
                                        const std::vector<std::wstring>& options = {},
                                        const std::wstring& extension = L".bmp") const;

  /// Returns the bytes of the bitmap on the clipboard, or none.
  [[nodiscard]] std::string clipboardBitmap() const;
  void putOnClipboard(std::string_view bitmap) const;

  const Palette imageColors_ = brightPalette(256);
  const std::wstring indexed_ = indexedFile("indexed.bmp", kSize);
  const std::wstring direct_ = directFile();
};

}  // namespace quillhue
