#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "formats/failure.h"

namespace quillhue::cli {

/// Something was refused; the text says why.
using Refusal = std::unexpected<std::string>;

[[nodiscard]] inline Refusal refusal(Failure failure) { return Refusal(std::string(textOf(failure))); }

/// Tells why a file was refused: one line.
void reportRefusal(Console& console, const std::string& file, std::string_view text);

}  // namespace quillhue::cli
