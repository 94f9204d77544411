#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/palette_entry.h"
#include "core/palette_format.h"
#include "core/settings.h"

namespace quillhue {

enum class SaveChangesAnswer : std::uint8_t { yes, no, cancel };

/// Shows messages to the user and asks questions. Texts are UTF-8; lines end with a line feed. Each call returns when
/// the user has seen the text.
class Messages {
 public:
  virtual ~Messages() = default;

  virtual void information(std::string_view text) = 0;
  virtual void error(std::string_view text) = 0;
  /// Asks Yes, No or Cancel under the caption "Warning". Closing the question means Cancel.
  virtual SaveChangesAnswer askSaveChanges(std::string_view text) = 0;
  /// Asks Yes or No under the caption "Save As". Returns true for Yes, false for anything else.
  virtual bool askReplaceFile(std::string_view text) = 0;
};

/// Receives changes of the current document's title, status text and Undo/Redo state. While a document is being
/// replaced, the slot is empty until documentReplaced. The functions must not throw: the document has changed already.
class DocumentObserver {
 public:
  virtual ~DocumentObserver() = default;

  virtual void titleChanged(const std::wstring& title) noexcept = 0;
  virtual void statusChanged(std::string_view text) noexcept = 0;
  virtual void undoRedoChanged(bool canUndo, bool canRedo) noexcept = 0;
  /// The slot now holds another document, which has announced its state.
  virtual void documentReplaced() noexcept = 0;
};

struct SaveAsAnswer {
  std::wstring fileName;
  /// The chosen file type, 1..11.
  PaletteFormat format = palette_format::kNone;
};

/// Questions asked while opening and saving files.
class FileQuestions {
 public:
  virtual ~FileQuestions() = default;

  /// Shows the Save As dialog with `preselected` (1..11) as the file type. Returns nothing if the user cancels.
  virtual std::optional<SaveAsAnswer> askSaveAs(PaletteFormat preselected) = 0;
  /// Asks how to make a palette from an image with this number of distinct colors. The answer n is -kMaxPaletteSize ..
  /// kMaxPaletteSize: n > 0 for a palette of n entries with the colors in order, n < 0 for a reduction to -n entries, 0
  /// for no palette.
  virtual std::int32_t askPaletteFromImage(std::uint64_t distinctColors) = 0;
};

/// Why the clipboard gives no palette: it holds none, or another program keeps it open.
enum class NoPalette : std::uint8_t { notThere, unavailable };

/// The clipboard, which exchanges palettes with other programs.
class PaletteClipboard {
 public:
  virtual ~PaletteClipboard() = default;

  /// Replaces the clipboard's content. Without entries, leaves the clipboard empty, because a palette has at least one.
  /// Returns false if the clipboard can't be opened or refuses the palette; nothing was copied then.
  [[nodiscard]] virtual bool put(std::span<const PaletteEntry> entries) = 0;
  /// Returns the first kMaxPaletteSize entries of the clipboard's palette.
  [[nodiscard]] virtual std::expected<std::vector<PaletteEntry>, NoPalette> get() = 0;
};

/// Colors of the screen.
class ScreenPalette {
 public:
  virtual ~ScreenPalette() = default;

  /// Returns the system's halftone palette for the screen, at most kMaxPaletteSize entries.
  [[nodiscard]] virtual std::vector<PaletteEntry> halftone() = 0;
};

/// The system's dialog for choosing one color.
class ColorChooser {
 public:
  static constexpr std::size_t kCustomColors = 16;

  virtual ~ColorChooser() = default;

  /// Starts at `initial` and offers `custom` in addition to the basic colors. Returns nothing if the user cancels.
  [[nodiscard]] virtual std::optional<PaletteEntry> chooseColor(
      PaletteEntry initial, std::span<const PaletteEntry, kCustomColors> custom) = 0;
};

/// Services that the logic requires from the program around it. The program owns them and keeps them alive longer than
/// any document.
struct Services {
  AppSettings& settings;
  Messages& messages;
  DocumentObserver& observer;
  FileQuestions& fileQuestions;
  PaletteClipboard& clipboard;
  ScreenPalette& screen;
};

}  // namespace quillhue
