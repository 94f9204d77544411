#pragma once

#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/console.h"

namespace quillhue::cli {

/// Returns the tool's command line without verbs.
[[nodiscard]] CommandLine emptyCommandLine();
/// Adds all verbs. `status` is the exit status of the verb that runs.
void addVerbs(CommandLine& tool, Console& console, ExitStatus& status);

/// Runs the tool with its arguments (UTF-8, without the program's name) and returns the exit status.
int run(std::vector<std::string> arguments, Console& console);

}  // namespace quillhue::cli
