#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/verb_help.h"

// Only command_line.cpp includes the parser's library, which takes longer to compile than all of the tool's own code.
namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace quillhue::cli {

/// Reports wrong usage: a wrong option, or options that do not go together.
[[noreturn]] void refuseUsage(const std::string& option, const std::string& reason);

/// An option that triggers an action and may be given more than once. The action may refuse its argument.
struct Action {
  std::string option;
  /// Name of the argument in help. Empty for an option without an argument; `act` then gets an empty text.
  std::string argument;
  std::string help;
  std::function<void(const std::string& argument)> act;
  /// The allowed arguments, for help; empty if there are too many to list.
  std::vector<std::string> choices{};
};

/// One verb of the tool and its options. The given variables are written when the command line is parsed, so they must
/// still exist then.
class Verb {
 public:
  Verb(CLI::App& parser, VerbHelp& help) : parser_(&parser), help_(&help) {}

  /// Adds a required argument without an option name.
  void addArgument(const std::string& name, std::string& value, const std::string& help);
  void addArgument(const std::string& name, std::vector<std::string>& values, const std::string& help);
  void addChoiceArgument(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                         const std::string& help);

  /// Adds the required argument OUT, which can also be given as -o OUT.
  void addOutputArgument(std::string& value, const std::string& help);

  /// Adds -o OUT for a verb whose output is the last argument of a list.
  void addOutputOption(std::string& value);

  /// Makes help list the following options under this heading.
  void beginGroup(const std::string& group) { group_ = group, isBrief_ = false; }
  /// The same for a group whose options the verb's help only names, because it would not fit a screen otherwise. The
  /// help of the option and the manual page explain them.
  void beginBriefGroup(const std::string& group) { group_ = group, isBrief_ = true; }

  /// `declaration` is the option and the name of its argument, such as "--name FILE".
  void addOption(const std::string& declaration, std::string& value, const std::string& help);
  void addOption(const std::string& declaration, std::optional<std::string>& value, const std::string& help);
  void addChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                 const std::string& help);
  void addFlag(const std::string& name, bool& value, const std::string& help);

  /// Adds an option whose argument is converted to a value of another type.
  void addAction(const Action& action);
  /// Adds an action that runs at its place in the command line, before or after other actions.
  void addOrderedAction(const Action& action);

  /// Sets the paragraphs that only the manual page has, each ended by an empty line. A line that begins with four
  /// blanks is an example, which the tests run.
  void setManual(const std::string& text);

  /// Sets the function that runs the verb after all its options are known.
  void onRun(const std::function<void()>& run);

 private:
  void describe(OptionHelp option);

  CLI::App* parser_;
  VerbHelp* help_;
  std::string group_ = "Options";
  bool isBrief_ = false;
};

/// The tool's command line.
class CommandLine {
 public:
  CommandLine(const std::string& name, std::string version, const std::string& help);
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;
  ~CommandLine();

  [[nodiscard]] Verb addVerb(const std::string& name, const std::string& help);

  [[nodiscard]] const ToolHelp& help() const { return help_; }

  /// Runs the requested verb, or writes the help or version to `out`. If the arguments are wrong, writes the reason to
  /// `refused` and returns false.
  [[nodiscard]] bool run(std::vector<std::string> arguments, std::ostream& out, std::ostream& refused);

 private:
  [[nodiscard]] bool showHelp(const std::vector<std::string>& words, std::ostream& out, std::ostream& refused) const;
  [[nodiscard]] bool refuseArguments(const std::string& reason, std::ostream& refused) const;
  [[nodiscard]] std::string textOf(const CLI::ParseError& error) const;
  // Returns the name of the verb that was called, or nothing.
  [[nodiscard]] std::vector<std::string> calledVerb() const;

  std::string version_;
  ToolHelp help_;
  std::unique_ptr<CLI::App> parser_;
};

}  // namespace quillhue::cli
