#include "ui/services/file_dialogs.h"

#include <utility>

#include "ui/dialogs/palette_from_image_dialog.h"
#include "ui/logic/window_texts.h"
#include "ui/services/file_types.h"

namespace quillhue {

namespace {

template <typename File>
std::optional<File> chosen(Messages& messages, std::expected<File, NoFile> answer) {
  if (answer) {
    return std::move(*answer);
  }
  if (answer.error() == NoFile::nameTooLong) {
    messages.error(kNameTooLongText);
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::wstring> FileDialogs::askOpenPalette() const {
  return chosen(messages_, askFileToOpen(owner_.top(), openPaletteTypes()));
}

std::optional<std::wstring> FileDialogs::askOpenImage() const {
  return chosen(messages_, askFileToOpen(owner_.top(), openImageTypes()));
}

std::optional<FileDialogs::ResultFile> FileDialogs::askSaveResult() const {
  const auto types = saveResultTypes();
  auto file =
      chosen(messages_, askFileToSave(owner_.top(), {.types = types, .extension = L"bmp", .asksToReplace = true}));
  if (!file) {
    return std::nullopt;
  }
  const auto format = resultFormat(file->name, file->type == kPngType ? ResultFormat::png : ResultFormat::bitmap);
  return ResultFile{std::move(file->name), format};
}

std::optional<SaveAsAnswer> FileDialogs::askSaveAs(PaletteFormat preselected) {
  const auto types = savePaletteTypes();
  auto file = chosen(messages_, askFileToSave(owner_.top(), {.types = types, .type = preselected, .nameLength = 256}));
  return file ? std::optional(SaveAsAnswer{std::move(file->name), file->type}) : std::nullopt;
}

std::int32_t FileDialogs::askPaletteFromImage(std::uint64_t distinctColors) {
  const std::int32_t answer = showPaletteFromImageDialog(owner_, messages_, distinctColors);
  // Making the palette may take long, and the dialog has restored the normal cursor.
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  return answer;
}

}  // namespace quillhue
