#include <algorithm>

#include "cli/manual.h"

namespace quillhue::cli {

namespace {

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) {
    text += (text.empty() ? "" : " ") + word;
  }
  return text;
}

// The words that can follow a verb: its options, and the choices of its argument.
std::vector<std::string> wordsAfter(const VerbHelp& verb) {
  std::vector<std::string> words;
  for (const ArgumentHelp& argument : verb.arguments) {
    words.insert(words.end(), argument.choices.begin(), argument.choices.end());
  }
  for (const OptionHelp& option : verb.options) {
    words.push_back(option.name);
    if (!option.shortName.empty()) {
      words.push_back(option.shortName);
    }
  }
  words.insert(words.end(), {"--help", "--version"});
  return words;
}

std::vector<std::string> verbNames(const ToolHelp& tool) {
  std::vector<std::string> names;
  std::ranges::for_each(tool.verbs, [&](const VerbHelp& verb) { names.push_back(verb.name); });
  names.emplace_back("help");
  return names;
}

// Returns the cases "VERB:PREVIOUS WORD" of a shell script, each with the words that may follow between `before` and
// `after`.
std::string cases(const ToolHelp& tool, const std::string& before, const std::string& after) {
  const auto line = [&](const std::string& pattern, const std::vector<std::string>& words) {
    return "      " + pattern + ") " + before + joined(words) + after + " ;;\n";
  };
  std::string lines = line("help:*", verbNames(tool));
  for (const VerbHelp& verb : tool.verbs) {
    for (const OptionHelp& option : verb.options) {
      lines += option.choices.empty() ? "" : line(verb.name + ':' + option.name, option.choices);
    }
    lines += line(verb.name + ":*", wordsAfter(verb));
  }
  return lines;
}

std::string bashScript(const ToolHelp& tool) {
  return "_quillhue_cli() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} words=\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
         "    words='" +
         joined(verbNames(tool)) +
         "'\n  else\n"
         "    case ${COMP_WORDS[1]}:${COMP_WORDS[COMP_CWORD-1]} in\n" +
         cases(tool, "words='", "'") +
         "    esac\n  fi\n"
         "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$word\")\n"
         "}\n"
         "complete -o default -F _quillhue_cli " +
         tool.name + '\n';
}

std::string zshScript(const ToolHelp& tool) {
  return "#compdef " + tool.name +
         "\n"
         "if ((CURRENT == 2)); then\n"
         "  compadd -- " +
         joined(verbNames(tool)) +
         "\nelse\n"
         "    case ${words[2]}:${words[CURRENT-1]} in\n" +
         cases(tool, "compadd -- ", "; _files") + "    esac\nfi\n";
}

// Quotes for fish, whose texts in single quotes know \' and \\.
std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char letter : text) {
    result += letter == '\'' || letter == '\\' ? std::string("\\") + letter : std::string(1, letter);
  }
  return result + '\'';
}

std::string fishScript(const ToolHelp& tool) {
  const std::string complete = "complete -c " + tool.name + ' ';
  std::string script;
  for (const VerbHelp& verb : tool.verbs) {
    script += complete + "-n __fish_use_subcommand -f -a " + verb.name + " -d " + quoted(verb.help) + '\n';
    const std::string after = complete + "-n '__fish_seen_subcommand_from " + verb.name + "' ";
    for (const ArgumentHelp& argument : verb.arguments) {
      script += argument.choices.empty() ? "" : after + "-a " + quoted(joined(argument.choices)) + '\n';
    }
    for (const OptionHelp& option : verb.options) {
      script += after + "-l " + option.name.substr(2);
      script += option.shortName.empty() ? "" : " -s " + option.shortName.substr(1);
      script += option.argument.empty() ? "" : " -r";
      script += option.choices.empty() ? "" : " -f -a " + quoted(joined(option.choices));
      script += " -d " + quoted(option.help) + '\n';
    }
  }
  return script + complete + "-n __fish_use_subcommand -f -a help -d 'Explain a verb'\n" + complete +
         "-l help -s h -d 'Show help'\n" + complete + "-l version -s V -d 'Show the version'\n";
}

}  // namespace

std::vector<Document> completions(const ToolHelp& tool) {
  return {{"bash-completion/completions/" + tool.name, bashScript(tool)},
          {"zsh/site-functions/_" + tool.name, zshScript(tool)},
          {"fish/vendor_completions.d/" + tool.name + ".fish", fishScript(tool)}};
}

}  // namespace quillhue::cli
