#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace quillhue::cli {

/// The descriptions of the command line. Help, manual pages and completions are made from them.

/// An argument without an option name.
struct ArgumentHelp {
  std::string name;
  /// Whether it can be given more than once.
  bool isList = false;
  std::string help;
  /// The allowed values; empty if any.
  std::vector<std::string> choices;
};

struct OptionHelp {
  /// With one dash, such as "-f"; empty for most options.
  std::string shortName;
  std::string name;
  /// Name of the argument; empty for an option without one.
  std::string argument;
  std::string help;
  std::vector<std::string> choices;
  /// Heading under which help lists the option.
  std::string group;
  /// Whether help shows only the option and not its text. For verbs with more options than a screen has lines.
  bool isBrief = false;

  /// Returns "-f, --force" or "--size N".
  [[nodiscard]] std::string usage() const;
};

struct VerbHelp {
  std::string name;
  std::string help;
  std::vector<ArgumentHelp> arguments;
  std::vector<OptionHelp> options;
  /// Paragraphs that only the manual has. A line that begins with four blanks is an example.
  std::string manual;

  /// Returns "edit [OPTIONS] IN OUT".
  [[nodiscard]] std::string usage() const;
  /// Returns the names of the groups in the order in which help shows them.
  [[nodiscard]] std::vector<std::string> groups() const;
};

/// The descriptions of the whole tool.
struct ToolHelp {
  std::string name;
  std::string help;
  /// Adding one does not move the others.
  std::deque<VerbHelp> verbs;

  /// Returns null if there is no such verb.
  [[nodiscard]] const VerbHelp* findVerb(const std::string& verb) const;
};

/// Return the text that --help shows, of at most 80 characters a line.
[[nodiscard]] std::string helpOf(const ToolHelp& tool);
[[nodiscard]] std::string helpOf(const ToolHelp& tool, const VerbHelp& verb);
[[nodiscard]] std::string helpOf(const OptionHelp& option);

/// Returns the name with the fewest letters to change, if that is at most one letter of three.
[[nodiscard]] std::optional<std::string> nearestName(const std::string& name, const std::vector<std::string>& names);

}  // namespace quillhue::cli
