#pragma once

#include <string>

#include "cli/command_line.h"
#include "cli/console.h"

namespace quillhue::cli {

/// A verb that prints a list, as text or with --json as JSON.
struct ListVerb {
  std::string name;
  std::string help;
  /// Help text of --json.
  std::string jsonHelp;
  /// As for Verb::setManual.
  const char* manual = "";
  void (*showText)(Console& console) = nullptr;
  void (*showJson)(Console& console) = nullptr;
};
void addListVerb(CommandLine& tool, Console& console, const ListVerb& list);

}  // namespace quillhue::cli
