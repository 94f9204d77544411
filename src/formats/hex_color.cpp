#include "formats/hex_color.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace quillhue {

namespace {

constexpr std::string_view kDigits = "0123456789abcdefABCDEF";

}  // namespace

std::optional<PaletteEntry> parseHexColor(std::string_view digits) {
  if (digits.size() != 6 || digits.find_first_not_of(kDigits) != std::string_view::npos) {
    return std::nullopt;
  }
  std::uint32_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  return PaletteEntry{static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                      static_cast<std::uint8_t>(value)};
}

std::string hexDigitsOf(PaletteEntry color) {
  std::string digits;
  for (const std::uint8_t value : {color.red, color.green, color.blue}) {
    digits += kDigits[value / 16];
    digits += kDigits[value % 16];
  }
  return digits;
}

std::string hexTextOf(PaletteEntry color) {
  std::string text = '#' + hexDigitsOf(color);
  std::ranges::transform(text, text.begin(),
                         [](char letter) { return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter; });
  return text;
}

}  // namespace quillhue
