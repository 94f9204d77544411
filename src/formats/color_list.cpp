#include "formats/color_list.h"

#include <cstddef>
#include <utility>

#include "core/palette.h"
#include "formats/hex_color.h"

namespace quillhue {

namespace {

constexpr std::string_view kSeparators = " \t\r\n,;";

}  // namespace

std::string colorListText(std::span<const PaletteEntry> colors) {
  std::string text;
  for (const PaletteEntry& color : colors) {
    text += text.empty() ? "" : "\r\n";
    text += hexTextOf(color);
  }
  return text;
}

std::optional<std::vector<PaletteEntry>> parseColorList(std::string_view text) {
  std::vector<PaletteEntry> colors;
  for (std::size_t at = text.find_first_not_of(kSeparators); at != std::string_view::npos;
       at = text.find_first_not_of(kSeparators, at)) {
    std::string_view word = text.substr(at, text.find_first_of(kSeparators, at) - at);
    at += word.size();
    word.remove_prefix(word.starts_with('#') ? 1 : 0);
    const auto color = parseHexColor(word);
    if (!color) {
      return std::nullopt;
    }
    if (colors.size() < kMaxPaletteSize) {
      colors.push_back(*color);
    }
  }
  return colors.empty() ? std::nullopt : std::optional(std::move(colors));
}

}  // namespace quillhue
