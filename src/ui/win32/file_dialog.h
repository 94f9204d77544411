#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string>

#include "ui/win32/system.h"

namespace quillhue {

/// The system's dialogs for one file name. They keep the current folder, so that relative names stay valid.

struct FileType {
  std::string text;
  /// Separated by semicolons.
  std::string patterns;
};

/// Returns the filter string for OPENFILENAME: text, null, patterns, null for each type, then another null.
[[nodiscard]] std::wstring filterOf(std::span<const FileType> types);

/// Reasons why a dialog returns no file.
enum class NoFile : std::uint8_t { canceled, nameTooLong };

/// Asks for an existing file.
[[nodiscard]] std::expected<std::wstring, NoFile> askFileToOpen(HWND owner, std::span<const FileType> types);

struct SaveDialog {
  std::span<const FileType> types;
  /// Initially selected type, counted from 1.
  DWORD type = 1;
  /// Maximum length of the name, including the terminating null.
  DWORD nameLength = MAX_PATH;
  /// Appended to a name without an extension, if not null.
  const wchar_t* extension = nullptr;
  /// Asks before accepting the name of an existing file.
  bool asksToReplace = false;
};
struct FileToSave {
  std::wstring name;
  /// Chosen type, counted from 1.
  DWORD type = 1;
};
/// Asks for a file in an existing folder.
[[nodiscard]] std::expected<FileToSave, NoFile> askFileToSave(HWND owner, const SaveDialog& dialog);

}  // namespace quillhue
