#include "cli/list_verb.h"

#include <memory>

namespace quillhue::cli {

void addListVerb(CommandLine& tool, Console& console, const std::string& name, const std::string& help,
                 const std::string& jsonHelp, void (*showText)(Console& console), void (*showJson)(Console& console)) {
  Verb verb = tool.addVerb(name, help);
  const auto json = std::make_shared<bool>(false);
  verb.addFlag("--json", *json, jsonHelp);
  verb.onRun([json, showText, showJson, &console] { *json ? showJson(console) : showText(console); });
}

}  // namespace quillhue::cli
