#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "cli/arguments.h"

namespace quillhue::cli {

namespace {

// Options with a short name, which is the same in all verbs.
constexpr std::array<std::array<const char*, 2>, 4> kShortNames{
    {{"--force", "-f"}, {"--out", "-o"}, {"--help", "-h"}, {"--version", "-V"}}};

std::string shortNameOf(const std::string& option) {
  const auto* const found = std::ranges::find(kShortNames, option, [](const auto& names) { return names[0]; });
  return found == kShortNames.end() ? std::string() : (*found)[1];
}

// Splits "--size N" into the option and its argument.
OptionHelp optionHelpOf(const std::string& declaration, const std::string& help) {
  const auto blank = declaration.find(' ');
  const std::string name = declaration.substr(0, blank);
  return {.shortName = shortNameOf(name),
          .name = name,
          .argument = blank == std::string::npos ? std::string() : declaration.substr(blank + 1),
          .help = help,
          .choices = {},
          .group = {}};
}

// The parser's declaration of an option.
std::string namesOf(const OptionHelp& option) {
  return (option.shortName.empty() ? "" : option.shortName + ',') + option.name;
}

std::vector<std::string> verbNames(const ToolHelp& tool) {
  std::vector<std::string> names;
  std::ranges::transform(tool.verbs, std::back_inserter(names), &VerbHelp::name);
  return names;
}

std::vector<std::string> optionNames(const VerbHelp& verb) {
  std::vector<std::string> names;
  std::ranges::transform(verb.options, std::back_inserter(names), &OptionHelp::name);
  return names;
}

std::string refusedVerb(const std::string& name, const ToolHelp& tool) {
  const std::vector<std::string> verbs = verbNames(tool);
  const auto nearest = nearestName(name, verbs);
  return name + " is not a verb. " + (nearest ? "The nearest is " + *nearest : "Use " + listed(verbs)) + ".\n";
}

std::string refusedOption(const std::string& name, const VerbHelp& verb) {
  const auto nearest = nearestName(name, optionNames(verb));
  return name + " is not an option of " + verb.name + '.' + (nearest ? " The nearest is " + *nearest + '.' : "") + '\n';
}

// Says what an option without its argument needs.
std::string missingArgument(const std::string& name, const VerbHelp& verb) {
  const auto option = std::ranges::find(verb.options, name, &OptionHelp::name);
  if (option == verb.options.end()) {
    return name + " needs an argument.\n";
  }
  return name + " needs " + option->argument + ": " + option->help + ".\n";
}

// Whether an argument in the place of the verb is one of its options.
bool isVerbOption(const std::string& argument) {
  constexpr std::array<std::string_view, 4> kOwnOptions{"-h", "--help", "-V", "--version"};
  return argument.starts_with('-') && std::ranges::find(kOwnOptions, argument) == kOwnOptions.end();
}

}  // namespace

void refuseUsage(const std::string& option, const std::string& reason) { throw CLI::ValidationError(option, reason); }

void Verb::addArgument(const std::string& name, std::string& value, const std::string& help) {
  parser_->add_option(name, value, help)->required();
  help_->arguments.push_back({name, false, help, {}});
}

void Verb::addArgument(const std::string& name, std::vector<std::string>& values, const std::string& help) {
  parser_->add_option(name, values, help)->required();
  help_->arguments.push_back({name, true, help, {}});
}

void Verb::addChoiceArgument(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                             const std::string& help) {
  parser_->add_option(name, value, help)->required()->check(CLI::IsMember(choices));
  help_->arguments.push_back({name, false, help, choices});
}

void Verb::addOutputArgument(std::string& value, const std::string& help) {
  parser_->add_option("-o,--out,OUT", value, help)->required();
  help_->arguments.push_back({"OUT", false, help, {}});
  describe(optionHelpOf("--out OUT", "The same as the argument OUT"));
}

void Verb::addOutputOption(std::string& value) { addOption("--out OUT", value, "The same as the last argument"); }

void Verb::addOption(const std::string& declaration, std::string& value, const std::string& help) {
  const OptionHelp option = optionHelpOf(declaration, help);
  parser_->add_option(namesOf(option), value, help);
  describe(option);
}

void Verb::addOption(const std::string& declaration, std::optional<std::string>& value, const std::string& help) {
  const OptionHelp option = optionHelpOf(declaration, help);
  parser_->add_option(namesOf(option), value, help);
  describe(option);
}

void Verb::addChoice(const std::string& name, std::string& value, const std::vector<std::string>& choices,
                     const std::string& help) {
  OptionHelp option = optionHelpOf(name + " NAME", help);
  option.choices = choices;
  parser_->add_option(namesOf(option), value, help)->check(CLI::IsMember(choices));
  describe(option);
}

void Verb::addFlag(const std::string& name, bool& value, const std::string& help) {
  const OptionHelp option = optionHelpOf(name, help);
  parser_->add_flag(namesOf(option), value, help);
  describe(option);
}

void Verb::addAction(const Action& action) {
  OptionHelp option = optionHelpOf(action.option + (action.argument.empty() ? "" : ' ' + action.argument), action.help);
  option.choices = action.choices;
  parser_->add_option_function<std::string>(namesOf(option), action.act, action.help);
  describe(option);
}

void Verb::addOrderedAction(const Action& action) {
  CLI::Option* const added = action.argument.empty()
                                 ? parser_->add_flag_callback(
                                       action.option, [act = action.act] { act({}); }, action.help)
                                 : parser_->add_option_function<std::string>(action.option, action.act, action.help);
  // Refuses "--flag=false", which the parser accepts by default.
  added->disable_flag_override()->trigger_on_parse();
  OptionHelp option = optionHelpOf(action.option + (action.argument.empty() ? "" : ' ' + action.argument), action.help);
  option.choices = action.choices;
  describe(option);
}

void Verb::describe(OptionHelp option) {
  option.group = group_;
  option.isBrief = isBrief_;
  help_->options.push_back(std::move(option));
}

void Verb::setManual(const std::string& text) { help_->manual = text; }

void Verb::onRun(const std::function<void()>& run) { parser_->callback(run); }

CommandLine::CommandLine(const std::string& name, std::string version, const std::string& help)
    : version_(std::move(version)), help_{name, help, {}}, parser_(std::make_unique<CLI::App>(help, name)) {
  parser_->allow_windows_style_options(false);
  parser_->require_subcommand(1);
  parser_->set_version_flag("-V,--version", version_);
}

CommandLine::~CommandLine() = default;

Verb CommandLine::addVerb(const std::string& name, const std::string& help) {
  help_.verbs.push_back({name, help, {}, {}, {}});
  CLI::App* const verb = parser_->add_subcommand(name, help);
  verb->set_version_flag("-V,--version", version_);
  return {*verb, help_.verbs.back()};
}

bool CommandLine::showHelp(const std::vector<std::string>& words, std::ostream& out, std::ostream& refused) const {
  if (words.empty()) {
    out << helpOf(help_);
    return true;
  }
  const VerbHelp* const verb = help_.findVerb(words[0]);
  if (verb == nullptr) {
    refused << refusedVerb(words[0], help_);
    return false;
  }
  if (words.size() == 1) {
    out << helpOf(help_, *verb);
    return true;
  }
  const auto isWanted = [&](const OptionHelp& option) {
    return option.name == words[1] || option.name == "--" + words[1];
  };
  const auto option = std::ranges::find_if(verb->options, isWanted);
  if (option == verb->options.end()) {
    refused << refusedOption(words[1], *verb);
    return false;
  }
  out << helpOf(*option);
  return true;
}

bool CommandLine::refuseArguments(const std::string& reason, std::ostream& refused) const {
  refused << reason << "Run with --help for more information.\n";
  return false;
}

bool CommandLine::run(std::vector<std::string> arguments, std::ostream& out, std::ostream& refused) {
  if (arguments.empty()) {
    return refuseArguments("A verb is required. The verbs are listed by " + help_.name + " help.\n", refused);
  }
  if (isVerbOption(arguments[0])) {
    return refuseArguments("A verb is required before " + arguments[0] + ".\n", refused);
  }
  if (arguments[0] == "help") {
    arguments.erase(arguments.begin());
    return showHelp(arguments, out, refused);
  }
  if (!arguments[0].starts_with('-') && help_.findVerb(arguments[0]) == nullptr) {
    return refuseArguments(refusedVerb(arguments[0], help_), refused);
  }
  try {
    // The parser takes its arguments in reverse order.
    std::ranges::reverse(arguments);
    parser_->parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    return showHelp(calledVerb(), out, refused);
  } catch (const CLI::CallForVersion&) {
    out << version_ << '\n';
  } catch (const CLI::ExtrasError&) {
    const std::vector<std::string> rest = parser_->remaining(true);
    const std::vector<std::string> verb = calledVerb();
    if (rest.empty() || verb.empty() || !rest[0].starts_with('-')) {
      return refuseArguments((rest.empty() ? "An argument" : rest[0]) + " was not expected.\n", refused);
    }
    return refuseArguments(refusedOption(rest[0], *help_.findVerb(verb[0])), refused);
  } catch (const CLI::ParseError& error) {
    return refuseArguments(textOf(error), refused);
  }
  return true;
}

std::string CommandLine::textOf(const CLI::ParseError& error) const {
  const std::string text = error.what();
  const std::vector<std::string> verb = calledVerb();
  if (!verb.empty() && dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    return missingArgument(text.substr(0, text.find(':')), *help_.findVerb(verb[0]));
  }
  // The parser names an argument by its option.
  return (text.starts_with("--out is required") ? "OUT is required" : text) + '\n';
}

std::vector<std::string> CommandLine::calledVerb() const {
  std::vector<std::string> names;
  for (const CLI::App* verb : parser_->get_subcommands()) {
    names.push_back(verb->get_name());
  }
  return names;
}

}  // namespace quillhue::cli
