#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string>

#include "ui/win32/system.h"

namespace quillhue {

/// The system's dialogs for one file name. None of them changes the current folder: names that are relative to it stay
/// what they are.

struct FileType {
  std::string text;
  /// Separated by semicolons.
  std::string patterns;
};

/// The list as the dialogs take it: text, null, patterns, null, and a null behind the last.
[[nodiscard]] std::wstring filterOf(std::span<const FileType> types);

/// Why a dialog gives no file.
enum class NoFile : std::uint8_t { canceled, nameTooLong };

/// A file that exists.
[[nodiscard]] std::expected<std::wstring, NoFile> askFileToOpen(HWND owner, std::span<const FileType> types);

struct SaveDialog {
  std::span<const FileType> types;
  /// The type that is chosen at first, from 1 on.
  DWORD type = 1;
  /// The characters that a name has at most, with a null at its end.
  DWORD nameLength = MAX_PATH;
  /// Appended to a name that has none, if not null.
  const wchar_t* extension = nullptr;
  /// Asks before a name is accepted that a file has.
  bool asksToReplace = false;
};
struct FileToSave {
  std::wstring name;
  /// From 1 on.
  DWORD type = 1;
};
/// A file in a folder that exists.
[[nodiscard]] std::expected<FileToSave, NoFile> askFileToSave(HWND owner, const SaveDialog& dialog);

}  // namespace quillhue
