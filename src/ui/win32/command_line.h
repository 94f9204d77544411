#pragma once

#include <optional>
#include <string>

namespace quillhue {

/// The first argument after the program's name.
[[nodiscard]] std::optional<std::wstring> firstArgument();

/// The folder of the program's file, without a backslash at the end.
[[nodiscard]] std::wstring programFolder();

}  // namespace quillhue
