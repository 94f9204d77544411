#pragma once

#include "cli/command_line.h"
#include "cli/console.h"

namespace quillhue::cli {

/// Each adds one verb to the tool. When the verb is called it runs at once, refuses the usage that only its options
/// together can tell to be wrong, and sets the exit status.
void addFormatsVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addInfoVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addConvertVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addRemapVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addNewVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addEditVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addValuesVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addEffectsVerb(CommandLine& tool, Console& console, ExitStatus& status);
void addModelsVerb(CommandLine& tool, Console& console, ExitStatus& status);

}  // namespace quillhue::cli
