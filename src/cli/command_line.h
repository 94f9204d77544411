#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Only command_line.cpp includes the parser's library, which takes longer to compile than all of the tool's own code.
namespace CLI {
class App;
}

namespace quillhue::cli {

/// Reports wrong usage: a wrong option, or options that do not go together.
[[noreturn]] void refuseUsage(const std::string& option, const std::string& reason);

/// An option that triggers an action and may be given more than once. The action may refuse its argument.
struct Action {
  std::string option;
  /// Placeholder for the argument in help. Empty for an option without an argument; `act` then gets an empty text.
  std::string argument;
  std::string help;
  std::function<void(const std::string& argument)> act;
};

/// One verb of the tool and its options. The given variables are written when the command line is parsed, so they must
/// still exist then.
class Verb {
 public:
  explicit Verb(CLI::App& parser) : parser_(&parser) {}

  /// Adds a required argument without an option name.
  void addArgument(const std::string& name, std::string& value, const std::string& help);
  void addArgument(const std::string& name, std::vector<std::string>& values, const std::string& help);
  void addChoiceArgument(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                         const std::string& help);

  void addOption(const std::string& name, std::string& value, const std::string& help);
  void addOption(const std::string& name, std::optional<std::string>& value, const std::string& help);
  void addChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                 const std::string& help);
  void addFlag(const std::string& name, bool& value, const std::string& help);

  /// Adds an option whose argument is converted to a value of another type.
  void addAction(const Action& action);
  /// Adds an action that runs at its place in the command line, before or after other actions. Help lists it under
  /// `group`.
  void addOrderedAction(const Action& action, const std::string& group);

  /// Sets the function that runs the verb after all its options are known.
  void onRun(const std::function<void()>& run);

 private:
  CLI::App* parser_;
};

/// The tool's command line.
class CommandLine {
 public:
  CommandLine(const std::string& name, std::string version, const std::string& help);
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;
  ~CommandLine();

  [[nodiscard]] Verb addVerb(const std::string& name, const std::string& help);

  /// Runs the requested verb, or writes the help or version to `out`. If the arguments are wrong, writes the reason to
  /// `refused` and returns false.
  [[nodiscard]] bool run(std::vector<std::string> arguments, std::ostream& out, std::ostream& refused);

 private:
  std::string version_;
  std::unique_ptr<CLI::App> parser_;
};

}  // namespace quillhue::cli
