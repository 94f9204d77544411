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

/// Tells and asks the user. Texts are UTF-8, lines end with a line feed; each call returns when the user has seen it.
class Messages {
 public:
  virtual ~Messages() = default;

  virtual void information(std::string_view text) = 0;
  virtual void error(std::string_view text) = 0;
  /// Yes, No or Cancel under the caption "Warning"; closing the question is Cancel.
  virtual SaveChangesAnswer askSaveChanges(std::string_view text) = 0;
  /// Yes or No under the caption "Save As"; true for Yes, false for anything else.
  virtual bool askReplaceFile(std::string_view text) = 0;
};

/// Hears what the current document shows of itself around the palette. While a document is being replaced the slot
/// holds none until documentReplaced.
class DocumentObserver {
 public:
  virtual ~DocumentObserver() = default;

  virtual void titleChanged(std::wstring_view title) = 0;
  virtual void statusChanged(std::string_view text) = 0;
  virtual void undoRedoChanged(bool canUndo, bool canRedo) = 0;
  /// The slot holds another document now, complete and announced.
  virtual void documentReplaced() = 0;
};

struct SaveAsAnswer {
  std::wstring fileName;
  /// 1..11, the file type chosen.
  PaletteFormat format = palette_format::kNone;
};

/// Questions that opening and saving ask.
class FileQuestions {
 public:
  virtual ~FileQuestions() = default;

  /// The Save As dialog with `preselected` (1..11) as file type; nothing when the user cancels.
  virtual std::optional<SaveAsAnswer> askSaveAs(PaletteFormat preselected) = 0;
  /// How to make a palette from an image of so many different colors: n > 0 for n entries of them in order, n < 0 for
  /// a reduction to -n entries, 0 for none. -kMaxPaletteSize .. kMaxPaletteSize.
  virtual std::int32_t askPaletteFromImage(std::uint64_t distinctColors) = 0;
};

/// Why the clipboard gives no palette: it holds none, or another program keeps it open.
enum class NoPalette : std::uint8_t { notThere, unavailable };

/// The place where palettes are exchanged with other programs.
class PaletteClipboard {
 public:
  virtual ~PaletteClipboard() = default;

  /// Replaces the clipboard's content. Without entries the clipboard is left empty, because no palette has none. False
  /// when the clipboard can't be opened or refuses the palette: then nothing was copied.
  [[nodiscard]] virtual bool put(std::span<const PaletteEntry> entries) = 0;
  /// The first kMaxPaletteSize entries of the clipboard's palette.
  [[nodiscard]] virtual std::expected<std::vector<PaletteEntry>, NoPalette> get() = 0;
};

/// What the screen tells about its colors.
class ScreenPalette {
 public:
  virtual ~ScreenPalette() = default;

  /// The system's halftone palette for the screen, at most kMaxPaletteSize entries.
  [[nodiscard]] virtual std::vector<PaletteEntry> halftone() = 0;
};

/// The system's dialog for one color.
class ColorChooser {
 public:
  static constexpr std::size_t kCustomColors = 16;

  virtual ~ColorChooser() = default;

  /// Starts at `initial` and offers `custom` beside the basic colors; nothing when the user cancels.
  [[nodiscard]] virtual std::optional<PaletteEntry> chooseColor(
      PaletteEntry initial, std::span<const PaletteEntry, kCustomColors> custom) = 0;
};

/// What the logic asks of the program around it. The program owns all of it and keeps it alive longer than any
/// document.
struct Services {
  AppSettings& settings;
  Messages& messages;
  DocumentObserver& observer;
  FileQuestions& fileQuestions;
  PaletteClipboard& clipboard;
  ScreenPalette& screen;
};

}  // namespace quillhue
