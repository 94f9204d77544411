#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace quillhue::cli {

/// Each function adds one verb to the tool. When called, the verb runs at once, refuses options that do not go
/// together, and sets the exit status.
void addFormatsVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addInfoVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addConvertVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addRemapVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addNewVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addEditVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addValuesVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addUsageVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addCompactVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addDiffVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addEffectsVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addModelsVerb(CommandLine& tool, Console& console, ExitStatus& status);

}  // namespace quillhue::cli
