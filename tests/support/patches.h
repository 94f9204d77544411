#pragma once

#include <cstdint>
#include <sstream>
#include <string>

#include "support/palettes.h"

namespace quillhue {

/// Writes "offset:bytes ..." into the content. Lengthens the content if it is too short.
inline void patch(Bytes& content, const std::string& patches) {
  std::istringstream words(patches);
  for (std::string word; words >> word;) {
    std::size_t at = std::stoul(word);
    const std::string digits = word.substr(word.find(':') + 1);
    for (std::size_t i = 0; i < digits.size(); i += 2, ++at) {
      content.resize(std::max(content.size(), at + 1));
      content[at] = static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16));
    }
  }
}

}  // namespace quillhue
