#include "ui/win32/file_dialog.h"

#include <utility>

#include "core/utf8.h"
#include "ui/win32/system.h"

namespace quillhue {

namespace {

std::expected<FileToSave, NoFile> ask(HWND owner, const SaveDialog& dialog, DWORD flags,
                                      decltype(GetOpenFileNameW)* show) {
  const std::wstring filter = filterOf(dialog.types);
  std::wstring name(dialog.nameLength, L'\0');
  OPENFILENAMEW question{};
  question.lStructSize = sizeof question;
  question.hwndOwner = owner;
  question.lpstrFilter = filter.c_str();
  question.nFilterIndex = dialog.type;
  question.lpstrFile = name.data();
  question.nMaxFile = dialog.nameLength;
  question.lpstrDefExt = dialog.extension;
  question.Flags = OFN_EXPLORER | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | flags;
  if (show(&question) == 0) {
    return std::unexpected(CommDlgExtendedError() == FNERR_BUFFERTOOSMALL ? NoFile::nameTooLong : NoFile::canceled);
  }
  return FileToSave{name.substr(0, name.find(L'\0')), question.nFilterIndex};
}

}  // namespace

std::wstring filterOf(std::span<const FileType> types) {
  std::wstring filter;
  for (const FileType& type : types) {
    filter += fromUtf8(type.text) + L'\0' + fromUtf8(type.patterns) + L'\0';
  }
  return filter;
}

std::expected<std::wstring, NoFile> askFileToOpen(HWND owner, std::span<const FileType> types) {
  auto file = ask(owner, {types}, OFN_FILEMUSTEXIST, GetOpenFileNameW);
  if (!file) {
    return std::unexpected(file.error());
  }
  return std::move(file->name);
}

std::expected<FileToSave, NoFile> askFileToSave(HWND owner, const SaveDialog& dialog) {
  return ask(owner, dialog, dialog.asksToReplace ? OFN_OVERWRITEPROMPT : 0, GetSaveFileNameW);
}

}  // namespace quillhue
