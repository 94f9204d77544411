#include "cli/application.h"

#include <algorithm>
#include <exception>
#include <sstream>

#include "cli/refusal.h"
#include "cli/verbs.h"

namespace quillhue::cli {

namespace {

constexpr const char* kVersion = "quillhue-cli " QUILLHUE_VERSION;

}  // namespace

int run(std::vector<std::string> arguments, Console& console) {
  CLI::App tool("Makes, shows, edits and converts palettes: ordered lists of red-green-blue entries.", "quillhue-cli");
  tool.allow_windows_style_options(false);
  tool.require_subcommand(1);
  ExitStatus status = kDone;
  addFormatsVerb(tool, console, status);
  addInfoVerb(tool, console, status);
  addConvertVerb(tool, console, status);
  addNewVerb(tool, console, status);
  addEditVerb(tool, console, status);
  addValuesVerb(tool, console, status);
  addRemapVerb(tool, console, status);
  addEffectsVerb(tool, console, status);
  addModelsVerb(tool, console, status);
  tool.set_version_flag("--version", kVersion);
  for (CLI::App* verb : tool.get_subcommands({})) {
    verb->set_version_flag("--version", kVersion);
  }
  try {
    // The parser takes its arguments last one first.
    std::ranges::reverse(arguments);
    tool.parse(std::move(arguments));
  } catch (const CLI::ParseError& error) {
    std::ostringstream refused;
    status = tool.exit(error, console.out, refused) == 0 ? kDone : kWrongUsage;
    console.err << printable(refused.str());
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
