#pragma once

#include <expected>
#include <optional>
#include <vector>

#include "cli/console.h"
#include "core/services.h"
#include "core/system_palettes.h"

namespace quillhue::cli {

/// The services that the tool gives to the logic: messages go to standard error, every question is answered with no,
/// the clipboard is private to the tool, and the halftone palette is a fixed one.
class ToolServices : private Messages, private DocumentObserver, private FileQuestions, private PaletteClipboard {
 public:
  explicit ToolServices(Console& console) : console_(console) {}
  ToolServices(const ToolServices&) = delete;
  ToolServices& operator=(const ToolServices&) = delete;
  ~ToolServices() override = default;

  AppSettings settings;
  FixedHalftone screen;
  Services services{settings, *this, *this, *this, *this, screen};

 private:
  void information(std::string_view text) override { console_.err << text << '\n'; }
  void error(std::string_view text) override { console_.err << text << '\n'; }
  SaveChangesAnswer askSaveChanges(std::string_view /*text*/) override { return SaveChangesAnswer::no; }
  bool askReplaceFile(std::string_view /*text*/) override { return false; }
  void titleChanged(const std::wstring& /*title*/) noexcept override {}
  void statusChanged(std::string_view /*text*/) noexcept override {}
  void undoRedoChanged(bool /*canUndo*/, bool /*canRedo*/) noexcept override {}
  void documentReplaced() noexcept override {}
  std::optional<SaveAsAnswer> askSaveAs(PaletteFormat /*preselected*/) override { return std::nullopt; }
  std::int32_t askPaletteFromImage(std::uint64_t /*distinctColors*/) override { return 0; }
  bool put(std::span<const PaletteEntry> entries) override {
    clipboard_ = {entries.begin(), entries.end()};
    return true;
  }
  std::expected<std::vector<PaletteEntry>, NoPalette> get() override {
    if (clipboard_.empty()) {
      return std::unexpected(NoPalette::notThere);
    }
    return clipboard_;
  }

  Console& console_;
  std::vector<PaletteEntry> clipboard_;
};

}  // namespace quillhue::cli
