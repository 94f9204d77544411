#include "cli/application.h"

#include <exception>
#include <new>
#include <sstream>
#include <utility>

#include "cli/refusal.h"
#include "cli/verbs.h"

namespace quillhue::cli {

CommandLine emptyCommandLine() {
  return {"quillhue-cli", "quillhue-cli " QUILLHUE_VERSION,
          "Makes, shows, edits and converts palettes of red-green-blue entries."};
}

void addVerbs(CommandLine& tool, Console& console, ExitStatus& status) {
  addFormatsVerb(tool, console, status);
  addInfoVerb(tool, console, status);
  addConvertVerb(tool, console, status);
  addNewVerb(tool, console, status);
  addEditVerb(tool, console, status);
  addValuesVerb(tool, console, status);
  addRemapVerb(tool, console, status);
  addUsageVerb(tool, console, status);
  addCompactVerb(tool, console, status);
  addDiffVerb(tool, console, status);
  addEffectsVerb(tool, console, status);
  addModelsVerb(tool, console, status);
}

int run(std::vector<std::string> arguments, Console& console) {
  ExitStatus status = kDone;
  try {
    CommandLine tool = emptyCommandLine();
    addVerbs(tool, console, status);
    std::ostringstream refused;
    if (!tool.run(std::move(arguments), console.out, refused)) {
      console.err << printable(refused.str());
      status = kWrongUsage;
    }
  } catch (const std::bad_alloc&) {
    console.err << kNoMemoryText << '\n';
    status = kRefused;
  } catch (const std::exception& error) {
    console.err << error.what() << '\n';
    status = kRefused;
  }
  console.out.flush();
  if (!console.out) {
    console.err << "The output could not be written.\n";
    return kRefused;
  }
  return status;
}

}  // namespace quillhue::cli
