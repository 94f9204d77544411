#include "cli/manual.h"

#include <sstream>

namespace quillhue::cli {

namespace {

// Escapes what roff would interpret: backslashes, dashes, and the first character of a line.
std::string roff(const std::string& text) {
  std::string escaped = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
  for (const char letter : text) {
    escaped += letter == '\\' ? "\\e" : (letter == '-' ? "\\-" : std::string(1, letter));
  }
  return escaped;
}

std::string heading(const std::string& page, const std::string& version) {
  return ".TH " + page + R"( 1 "" ")" + page + ' ' + version + R"(" "User Commands")" + '\n';
}

std::string entry(const std::string& term, const std::string& text) {
  return ".TP\n.B " + roff(term) + '\n' + roff(text) + '\n';
}

// The manual's paragraphs; lines that begin with four blanks are examples.
std::string paragraphs(const std::string& text) {
  constexpr const char* kExampleIndent = "    ";
  std::string page;
  bool inExample = false;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const bool isExample = line.starts_with(kExampleIndent);
    if (isExample != inExample) {
      page += isExample ? ".PP\n.nf\n.RS\n" : ".RE\n.fi\n";
      inExample = isExample;
    }
    page += line.empty() ? ".PP\n" : roff(isExample ? line.substr(4) : line) + '\n';
  }
  return page + (inExample ? ".RE\n.fi\n" : "");
}

std::string choicesOf(const std::vector<std::string>& choices) {
  std::string text;
  for (const std::string& choice : choices) {
    text += (text.empty() ? " One of: " : ", ") + choice;
  }
  return text + (choices.empty() ? "" : ".");
}

std::string optionsOf(const VerbHelp& verb) {
  std::string page;
  for (const std::string& group : verb.groups()) {
    page += ".SS " + roff(group) + '\n';
    for (const OptionHelp& option : verb.options) {
      page += option.group == group ? entry(option.usage(), option.help + '.' + choicesOf(option.choices)) : "";
    }
  }
  return page;
}

Document pageOf(const ToolHelp& tool, const VerbHelp& verb, const std::string& version) {
  const std::string name = tool.name + '-' + verb.name;
  std::string page = heading(name, version);
  page += ".SH NAME\n" + roff(name) + " \\- " + roff(verb.help) + "\n.SH SYNOPSIS\n.B " +
          roff(tool.name + ' ' + verb.usage()) + "\n.SH DESCRIPTION\n";
  for (const ArgumentHelp& argument : verb.arguments) {
    page += entry(argument.name, argument.help + '.' + choicesOf(argument.choices));
  }
  page += ".PP\n" + paragraphs(verb.manual) + ".SH OPTIONS\n" + optionsOf(verb);
  page += ".SH SEE ALSO\n.BR " + roff(tool.name) + " (1)\n";
  return {"man/man1/" + name + ".1", page};
}

Document pageOf(const ToolHelp& tool, const std::string& version) {
  std::string page = heading(tool.name, version);
  page += ".SH NAME\n" + roff(tool.name) + " \\- " + roff(tool.help) + "\n.SH SYNOPSIS\n.B " + roff(tool.name) +
          "\nVERB [OPTIONS] ARGUMENTS...\n.SH VERBS\n";
  for (const VerbHelp& verb : tool.verbs) {
    page += entry(verb.name, verb.help + '.');
  }
  page += ".SH OPTIONS\n" + entry("-h, --help", "Show help. After a verb, show the help of the verb.") +
          entry("-V, --version", "Show the version.") +
          ".SH EXIT STATUS\n0 for success, 1 if a file was refused, 2 for wrong usage.\n.SH SEE ALSO\n";
  for (const VerbHelp& verb : tool.verbs) {
    page += ".BR " + roff(tool.name + '-' + verb.name) + " (1)\n";
  }
  return {"man/man1/" + tool.name + ".1", page};
}

}  // namespace

std::vector<Document> manualPages(const ToolHelp& tool, const std::string& version) {
  std::vector<Document> pages{pageOf(tool, version)};
  for (const VerbHelp& verb : tool.verbs) {
    pages.push_back(pageOf(tool, verb, version));
  }
  return pages;
}

}  // namespace quillhue::cli
