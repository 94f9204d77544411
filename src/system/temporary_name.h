#pragma once

#include <string>

namespace quillhue {

/// Returns a file name without a folder. It can't be guessed and is unlikely to exist.
[[nodiscard]] std::string temporaryName();

}  // namespace quillhue
