#pragma once

#include <optional>
#include <string>

namespace quillhue {

/// The file that the first argument after the program's name tells: its full name, which the file dialogs can't change
/// the meaning of by changing the current folder.
[[nodiscard]] std::optional<std::wstring> fileArgument();

/// The folder of the program's file, without a backslash at the end.
[[nodiscard]] std::wstring programFolder();

}  // namespace quillhue
