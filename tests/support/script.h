#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <sstream>
#include <string>

namespace quillhue {

/// The action for each word of a table. An action gets the word's numbers, such as 3 and 4 in "drag=3,4".
using ScriptNumbers = std::array<std::int32_t, 3>;
using ScriptActs = std::map<std::string, std::function<void(const ScriptNumbers& numbers)>>;

/// Performs the words of a script one after the other.
inline void perform(const ScriptActs& acts, const std::string& script) {
  std::istringstream words(script);
  for (std::string word; words >> word;) {
    const auto equals = word.find('=');
    std::istringstream text(equals == std::string::npos ? "" : word.substr(equals + 1));
    ScriptNumbers numbers{};
    char separator = 0;
    text >> numbers[0] >> separator >> numbers[1] >> separator >> numbers[2];
    acts.at(word.substr(0, equals))(numbers);
  }
}

}  // namespace quillhue
