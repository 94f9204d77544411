#pragma once

#include <string>

#include "cli/command_line.h"
#include "cli/console.h"

namespace quillhue::cli {

/// Adds a verb that prints a list, as text or with --json as JSON. `jsonHelp` is the help text of --json.
void addListVerb(CommandLine& tool, Console& console, const std::string& name, const std::string& help,
                 const std::string& jsonHelp, void (*showText)(Console& console), void (*showJson)(Console& console));

}  // namespace quillhue::cli
