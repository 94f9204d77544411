#include "cli/list_verb.h"

#include <memory>

namespace quillhue::cli {

void addListVerb(CLI::App& tool, Console& console, const std::string& name, const std::string& help,
                 const std::string& jsonHelp, void (*showText)(Console& console), void (*showJson)(Console& console)) {
  CLI::App* const verb = tool.add_subcommand(name, help);
  const auto json = std::make_shared<bool>(false);
  verb->add_flag("--json", *json, jsonHelp);
  verb->callback([json, showText, showJson, &console] { *json ? showJson(console) : showText(console); });
}

}  // namespace quillhue::cli
