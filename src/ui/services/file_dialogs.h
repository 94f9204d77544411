#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/services.h"
#include "ui/logic/result_file.h"
#include "ui/win32/dialog_owner.h"

namespace quillhue {

/// Dialogs for file names, and the dialog that asks how to make a palette from an image. Each returns nothing if the
/// user cancels or the name is too long; the latter also shows a message.
class FileDialogs final : public FileQuestions {
 public:
  FileDialogs(const DialogOwner& owner, Messages& messages) : owner_(owner), messages_(messages) {}

  /// Ask for a file to open as a palette or as an image to remap.
  [[nodiscard]] std::optional<std::wstring> askOpenPalette() const;
  [[nodiscard]] std::optional<std::wstring> askOpenImage() const;
  struct ResultFile {
    std::wstring name;
    ResultFormat format;
  };
  /// Asks for the file to write a remapped image to, and for confirmation if the file exists.
  [[nodiscard]] std::optional<ResultFile> askSaveResult() const;

  std::optional<SaveAsAnswer> askSaveAs(PaletteFormat preselected) override;
  std::int32_t askPaletteFromImage(std::uint64_t distinctColors) override;

 private:
  const DialogOwner& owner_;
  Messages& messages_;
};

}  // namespace quillhue
