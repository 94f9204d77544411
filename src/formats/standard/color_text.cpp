#include "formats/standard/color_text.h"

#include <algorithm>

namespace quillhue {

std::optional<PaletteEntry> parseColorLine(std::string_view line) {
  constexpr std::string_view kBlanks = " \t";
  PaletteEntry color;
  for (const Channel channel : kChannels) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(kBlanks));
    const auto value = parseByte(word);
    if (!value) {
      return std::nullopt;
    }
    channelOf(color, channel) = *value;
    line.remove_prefix(word.size());
  }
  return color;
}

}  // namespace quillhue
