#include "cli/list_verb.h"

#include <memory>

namespace quillhue::cli {

void addListVerb(CommandLine& tool, Console& console, const ListVerb& list) {
  Verb verb = tool.addVerb(list.name, list.help);
  const auto json = std::make_shared<bool>(false);
  verb.addFlag("--json", *json, list.jsonHelp);
  verb.setManual(list.manual);
  verb.onRun([json, showText = list.showText, showJson = list.showJson, &console] {
    *json ? showJson(console) : showText(console);
  });
}

}  // namespace quillhue::cli
