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
  /// The page's edit fields, in their order.
  enum class Field : std::uint8_t { color, width, height };

  /// The index of a pixel of the images that have a palette.
  static constexpr std::uint8_t indexAt(Point point) {
    return static_cast<std::uint8_t>((point.x + 2 * point.y) % 200);
  }
  static constexpr Size kSize{150, 70};

  /// A file of an image of that size in the colors of imageColors_, or of one of kSize in all colors.
  [[nodiscard]] std::wstring indexedFile(const std::string& name, Size size) const;
  [[nodiscard]] std::wstring directFile() const;

  void open(const Palette& palette) { UiTest::open(palette, kUsePage); }
  [[nodiscard]] HWND view() const { return editor().control(L"QuillhueImage"); }
  [[nodiscard]] HWND field(Field field) const;
  [[nodiscard]] bool isUsable(const wchar_t* button) const { return IsWindowEnabled(editor().button(button)) != 0; }
  /// Load, the three modes, Protect color with its field, Protect grid with its two, Process, Save as: + for what can
  /// be used, X where it is chosen too, and - or x for what can't.
  [[nodiscard]] std::string controls() const;
  [[nodiscard]] bool showsImage() const;
  /// Waits until the view shows a color there.
  void awaitShown(Point point, PaletteEntry color) const;
  /// The color of the loaded image there.
  [[nodiscard]] PaletteEntry imageColor(Point point) const { return imageColors_.entry(indexAt(point)); }

  void load(const std::wstring& file) const;
  /// Presses "Process", and waits until the run is over.
  void process() const;
  /// The file of this type that "Save as" writes.
  [[nodiscard]] std::string result(const std::wstring& extension = L".bmp") const;
  /// The result of the tool for the image and the palette that was opened.
  [[nodiscard]] std::string toolsResult(const std::wstring& image, const std::wstring& mode,
                                        const std::vector<std::wstring>& options = {},
                                        const std::wstring& extension = L".bmp") const;

  /// The bytes of the bitmap on the clipboard; empty without one.
  [[nodiscard]] std::string clipboardBitmap() const;
  void putOnClipboard(std::string_view bitmap) const;

  const Palette imageColors_ = brightPalette(256);
  const std::wstring indexed_ = indexedFile("indexed.bmp", kSize);
  const std::wstring direct_ = directFile();
};

}  // namespace quillhue
