#include "cli/verb_help.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <span>
#include <utility>

namespace quillhue::cli {

namespace {

constexpr std::size_t kWidth = 80;
// Column of the texts beside the options.
constexpr std::size_t kTextColumn = 24;

// Appends words to the text, on new lines that start at the column `indent` where the line would become too long.
void addWrapped(std::string& text, std::span<const std::string> words, std::size_t indent) {
  std::size_t column = text.size() - (text.rfind('\n') + 1);
  for (const std::string& word : words) {
    if (column > indent && column + 1 + word.size() > kWidth) {
      text += '\n' + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      text += ' ';
      ++column;
    }
    text += word;
    column += word.size();
  }
  text += '\n';
}

std::vector<std::string> wordsOf(const std::string& text) {
  std::vector<std::string> words(1);
  for (const char letter : text) {
    if (letter == ' ') {
      words.emplace_back();
    } else {
      words.back() += letter;
    }
  }
  return words;
}

// Adds a term and its explanation beside it.
void addEntry(std::string& text, const std::string& term, const std::string& explanation) {
  std::string line = "  " + term;
  line.append(line.size() + 2 > kTextColumn ? 2 : kTextColumn - line.size(), ' ');
  if (line.size() > kTextColumn) {
    line += '\n' + std::string(kTextColumn, ' ');
  }
  addWrapped(line, wordsOf(explanation), kTextColumn);
  text += line;
}

void addGroup(std::string& text, const VerbHelp& verb, const std::string& group) {
  std::vector<std::string> brief;
  std::string entries;
  for (const OptionHelp& option : verb.options) {
    if (option.group == group && option.isBrief) {
      brief.push_back(option.usage());
    } else if (option.group == group) {
      addEntry(entries, option.usage(), option.help);
    }
  }
  std::string heading = group + ':';
  addWrapped(heading, brief, 2);
  text += (brief.empty() ? group + ":\n" : heading) + entries;
}

std::string argumentUsage(const ArgumentHelp& argument) { return argument.name + (argument.isList ? "..." : ""); }

// Levenshtein distance.
std::size_t distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string OptionHelp::usage() const {
  return (shortName.empty() ? "" : shortName + ", ") + name + (argument.empty() ? "" : ' ' + argument);
}

std::string VerbHelp::usage() const {
  std::string text = name + " [OPTIONS]";
  for (const ArgumentHelp& argument : arguments) {
    text += ' ' + argumentUsage(argument);
  }
  return text;
}

std::vector<std::string> VerbHelp::groups() const {
  std::vector<std::string> names;
  for (const OptionHelp& option : options) {
    if (std::ranges::find(names, option.group) == names.end()) {
      names.push_back(option.group);
    }
  }
  return names;
}

const VerbHelp* ToolHelp::findVerb(const std::string& verb) const {
  const auto found = std::ranges::find(verbs, verb, &VerbHelp::name);
  return found == verbs.end() ? nullptr : &*found;
}

std::string helpOf(const ToolHelp& tool) {
  std::string text;
  addWrapped(text, wordsOf(tool.help), 0);
  text += "Usage: " + tool.name + " VERB [OPTIONS] ARGUMENTS...\n\nVerbs:\n";
  for (const VerbHelp& verb : tool.verbs) {
    addEntry(text, verb.name, verb.help);
  }
  text += "\nOptions:\n";
  addEntry(text, "-h, --help", "Show this help; with a verb, the help of the verb");
  addEntry(text, "-V, --version", "Show the version");
  text += '\n' + tool.name + " help VERB explains a verb, and help VERB OPTION one of its options.\n";
  return text;
}

std::string helpOf(const ToolHelp& tool, const VerbHelp& verb) {
  std::string text = verb.help + "\nUsage: " + tool.name + ' ' + verb.usage() + '\n';
  for (const ArgumentHelp& argument : verb.arguments) {
    addEntry(text, argumentUsage(argument), argument.help);
  }
  for (const std::string& group : verb.groups()) {
    addGroup(text, verb, group);
  }
  return text;
}

std::string helpOf(const OptionHelp& option) {
  std::string text = option.usage() + "\n  ";
  addWrapped(text, wordsOf(option.help), 2);
  if (!option.choices.empty()) {
    text += "  One of: ";
    addWrapped(text, option.choices, 2);
  }
  return text;
}

std::optional<std::string> nearestName(const std::string& name, const std::vector<std::string>& names) {
  const auto distanceTo = [&](const std::string& other) { return distance(name, other); };
  const auto nearest = std::ranges::min_element(names, {}, distanceTo);
  if (nearest == names.end() || 3 * distanceTo(*nearest) > name.size() + 2) {
    return std::nullopt;
  }
  return *nearest;
}

}  // namespace quillhue::cli
