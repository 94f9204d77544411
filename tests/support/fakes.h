#pragma once

#include <expected>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/services.h"
#include "core/utf8.h"

namespace quillhue {

/// Services that record each call as a line of text, and answer as the test sets them.
class RecordingServices : public Messages,
                          public DocumentObserver,
                          public FileQuestions,
                          public PaletteClipboard,
                          public ScreenPalette {
 public:
  AppSettings settings;
  Services services{settings, *this, *this, *this, *this, *this};
  SaveChangesAnswer saveChanges = SaveChangesAnswer::cancel;
  bool replaceFile = false;
  std::optional<SaveAsAnswer> saveAs;
  std::int32_t paletteFromImage = 0;
  /// The palette on the clipboard, if there is one.
  std::optional<std::vector<PaletteEntry>> clipboard;
  /// Another program keeps the clipboard open.
  bool clipboardIsBusy = false;
  std::vector<PaletteEntry> screenColors;

  /// The lines since the last call.
  std::string takeLines() { return std::exchange(lines_, {}); }
  /// Returns the rest of the last message that starts with `beginning`, or an empty text.
  std::string takeLast(const std::string& beginning) {
    const std::string lines = takeLines();
    const auto at = lines.rfind(beginning);
    return at == std::string::npos ? ""
                                   : lines.substr(at + beginning.size(), lines.find('\n', at) - at - beginning.size());
  }

  void information(std::string_view text) override { note("information: ", text); }
  void error(std::string_view text) override { note("error: ", text); }
  SaveChangesAnswer askSaveChanges(std::string_view text) override {
    note("save? ", text);
    return saveChanges;
  }
  bool askReplaceFile(std::string_view text) override {
    note("replace? ", text);
    return replaceFile;
  }
  void titleChanged(const std::wstring& title) noexcept override { note("title: ", toUtf8(title)); }
  void statusChanged(std::string_view text) noexcept override { note("status: ", text); }
  void undoRedoChanged(bool canUndo, bool canRedo) noexcept override {
    note("undo/redo: ", std::string(canUndo ? "yes" : "no") + '/' + (canRedo ? "yes" : "no"));
  }
  void documentReplaced() noexcept override { note("document replaced", ""); }
  std::optional<SaveAsAnswer> askSaveAs(PaletteFormat preselected) override {
    note("save as? ", std::to_string(preselected));
    return saveAs;
  }
  std::int32_t askPaletteFromImage(std::uint64_t distinctColors) override {
    note("from image? ", std::to_string(distinctColors));
    return paletteFromImage;
  }
  bool put(std::span<const PaletteEntry> entries) override {
    if (clipboardIsBusy) {
      return false;
    }
    std::vector<PaletteEntry> copied(entries.begin(), entries.end());
    clipboard = copied.empty() ? std::nullopt : std::optional(std::move(copied));
    return true;
  }
  std::expected<std::vector<PaletteEntry>, NoPalette> get() override {
    if (!clipboard || clipboardIsBusy) {
      return std::unexpected(clipboardIsBusy ? NoPalette::unavailable : NoPalette::notThere);
    }
    return *clipboard;
  }
  std::vector<PaletteEntry> halftone() override { return screenColors; }

 private:
  void note(std::string_view what, std::string_view text) { lines_.append(what).append(text).append("\n"); }

  std::string lines_;
};

}  // namespace quillhue
