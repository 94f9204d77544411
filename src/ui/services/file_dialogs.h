#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/services.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// The system's dialogs for file names, and the question how to make a palette of an image. Each gives nothing when
/// the user cancels, or is told that the name is too long.
class FileDialogs final : public FileQuestions {
 public:
  FileDialogs(const DialogOwner& owner, Messages& messages) : owner_(owner), messages_(messages) {}

  /// A file to open as a palette, or as an image to remap.
  [[nodiscard]] std::optional<std::wstring> askOpenPalette() const;
  [[nodiscard]] std::optional<std::wstring> askOpenImage() const;
  /// Where to write a bitmap; asks before a file is replaced.
  [[nodiscard]] std::optional<std::wstring> askSaveBitmap() const;

  std::optional<SaveAsAnswer> askSaveAs(PaletteFormat preselected) override;
  std::int32_t askPaletteFromImage(std::uint64_t distinctColors) override;

 private:
  const DialogOwner& owner_;
  Messages& messages_;
};

}  // namespace quillhue
