#pragma once

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// Only command_line.cpp includes the library that parses: it takes longer to compile than all of the tool's own code.
namespace CLI {
class App;
}

namespace quillhue::cli {

/// Refuses what is wrong with an option, or with what is asked for together.
[[noreturn]] void refuseUsage(const std::string& option, const std::string& reason);

/// An option that stands for something to do, possibly more than once. What it does may refuse its argument.
struct Action {
  std::string option;
  /// What its argument is called; empty for an option without, which gives an empty argument.
  std::string argument;
  std::string help;
  std::function<void(const std::string& argument)> act;
};

/// One verb of the tool and its options. Values are set when the command line is parsed, so they outlive that.
class Verb {
 public:
  explicit Verb(CLI::App& parser) : parser_(&parser) {}

  /// What stands without an option; it is needed.
  void addArgument(const std::string& name, std::string& value, const std::string& help);
  void addArgument(const std::string& name, std::vector<std::string>& values, const std::string& help);
  void addChoiceArgument(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                         const std::string& help);

  void addOption(const std::string& name, std::string& value, const std::string& help);
  void addOption(const std::string& name, std::optional<std::string>& value, const std::string& help);
  void addChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                 const std::string& help);
  void addFlag(const std::string& name, bool& value, const std::string& help);

  /// An option whose argument becomes a value of another kind.
  void addAction(const Action& action);
  /// An action that is done where it is written, before and after others, and is listed under `group`.
  void addOrderedAction(const Action& action, const std::string& group);

  /// What the verb does once all its options are known.
  void onRun(const std::function<void()>& run);

 private:
  CLI::App* parser_;
};

/// The command line of the tool.
class CommandLine {
 public:
  CommandLine(const std::string& name, std::string version, const std::string& help);
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;
  ~CommandLine();

  [[nodiscard]] Verb addVerb(const std::string& name, const std::string& help);

  /// Runs the verb that is asked for, or writes to `out` the help or version. Answers false, and tells why in
  /// `refused`, when the arguments are wrong.
  [[nodiscard]] bool run(std::vector<std::string> arguments, std::ostream& out, std::ostream& refused);

 private:
  std::string version_;
  std::unique_ptr<CLI::App> parser_;
};

}  // namespace quillhue::cli
