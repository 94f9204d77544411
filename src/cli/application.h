#pragma once

#include <string>
#include <vector>

#include "cli/console.h"

namespace quillhue::cli {

/// Runs the tool with its arguments (UTF-8, without the program's name) and returns the exit status.
int run(std::vector<std::string> arguments, Console& console);

}  // namespace quillhue::cli
