#pragma once

#include <optional>
#include <string>

namespace quillhue {

/// Returns the full name of the file given as the first argument, or nothing without an argument. A full name stays
/// valid if the current folder changes.
[[nodiscard]] std::optional<std::wstring> fileArgument();

/// Returns the folder of the program's file, without a backslash at the end.
[[nodiscard]] std::wstring programFolder();

}  // namespace quillhue
