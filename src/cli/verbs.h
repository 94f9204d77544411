#pragma once

#include <CLI/CLI.hpp>

#include "cli/console.h"

namespace quillhue::cli {

/// Each adds one verb to the tool. When the verb is called it runs at once, throws CLI::ValidationError for what only
/// its options together can tell to be wrong, and sets the exit status.
void addFormatsVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addInfoVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addConvertVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addRemapVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addNewVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addEditVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addValuesVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addEffectsVerb(CLI::App& tool, Console& console, ExitStatus& status);
void addModelsVerb(CLI::App& tool, Console& console, ExitStatus& status);

}  // namespace quillhue::cli
