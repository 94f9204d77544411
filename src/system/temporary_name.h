#pragma once

#include <string>

namespace quillhue {

/// A file name, without a folder, that nothing else is likely to have and nobody can guess.
[[nodiscard]] std::string temporaryName();

}  // namespace quillhue
