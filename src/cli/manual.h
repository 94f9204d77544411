#pragma once

#include <string>
#include <vector>

#include "cli/verb_help.h"

namespace quillhue::cli {

/// A file that is made from the descriptions of the command line.
struct Document {
  /// Path below the folder that programs share: "man/man1/quillhue-cli.1".
  std::string path;
  std::string content;
};

/// Returns one manual page for the tool and one for each verb, in the macros of man(7).
[[nodiscard]] std::vector<Document> manualPages(const ToolHelp& tool, const std::string& version);

/// Returns the completions for bash, zsh and fish.
[[nodiscard]] std::vector<Document> completions(const ToolHelp& tool);

}  // namespace quillhue::cli
