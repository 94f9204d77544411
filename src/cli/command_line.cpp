#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <utility>

namespace quillhue::cli {

namespace {

CLI::Option* addActionTo(CLI::App& parser, const Action& action) {
  return parser.add_option_function<std::string>(action.option, action.act, action.help)->type_name(action.argument);
}

}  // namespace

void refuseUsage(const std::string& option, const std::string& reason) { throw CLI::ValidationError(option, reason); }

void Verb::addArgument(const std::string& name, std::string& value, const std::string& help) {
  parser_->add_option(name, value, help)->required();
}

void Verb::addArgument(const std::string& name, std::vector<std::string>& values, const std::string& help) {
  parser_->add_option(name, values, help)->required();
}

void Verb::addChoiceArgument(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                             const std::string& help) {
  parser_->add_option(name, value, help)->required()->check(CLI::IsMember(choices));
}

void Verb::addOption(const std::string& name, std::string& value, const std::string& help) {
  parser_->add_option(name, value, help);
}

void Verb::addOption(const std::string& name, std::optional<std::string>& value, const std::string& help) {
  parser_->add_option(name, value, help);
}

void Verb::addChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                     const std::string& help) {
  parser_->add_option(name, value, help)->check(CLI::IsMember(choices));
}

void Verb::addFlag(const std::string& name, bool& value, const std::string& help) {
  parser_->add_flag(name, value, help);
}

void Verb::addAction(const Action& action) { addActionTo(*parser_, action); }

void Verb::addOrderedAction(const Action& action, const std::string& group) {
  CLI::Option* const option = action.argument.empty() ? parser_->add_flag_callback(
                                                            action.option, [act = action.act] { act({}); }, action.help)
                                                      : addActionTo(*parser_, action);
  // Refuses "--flag=false", which the parser accepts by default.
  option->disable_flag_override()->trigger_on_parse()->group(group);
}

void Verb::onRun(const std::function<void()>& run) { parser_->callback(run); }

CommandLine::CommandLine(const std::string& name, std::string version, const std::string& help)
    : version_(std::move(version)), parser_(std::make_unique<CLI::App>(help, name)) {
  parser_->allow_windows_style_options(false);
  parser_->require_subcommand(1);
}

CommandLine::~CommandLine() = default;

Verb CommandLine::addVerb(const std::string& name, const std::string& help) {
  return Verb(*parser_->add_subcommand(name, help));
}

bool CommandLine::run(std::vector<std::string> arguments, std::ostream& out, std::ostream& refused) {
  // Added last, so that help lists it after the verb's own options.
  parser_->set_version_flag("--version", version_);
  for (CLI::App* verb : parser_->get_subcommands({})) {
    verb->set_version_flag("--version", version_);
  }
  try {
    // The parser takes its arguments in reverse order.
    std::ranges::reverse(arguments);
    parser_->parse(std::move(arguments));
  } catch (const CLI::ParseError& error) {
    return parser_->exit(error, out, refused) == 0;
  }
  return true;
}

}  // namespace quillhue::cli
