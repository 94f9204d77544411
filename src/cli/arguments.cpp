#include "cli/arguments.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <iterator>
#include <sstream>
#include <system_error>

#include "cli/refusal.h"
#include "formats/hex_color.h"

namespace quillhue::cli {

namespace {

std::string inLowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char letter) { return std::tolower(letter); });
  return text;
}

// Parses six digits, or three of which each counts twice.
std::optional<PaletteEntry> parseHexDigits(std::string_view digits) {
  if (digits.size() != 3) {
    return parseHexColor(digits);
  }
  std::string doubled;
  for (const char digit : digits) {
    doubled += {digit, digit};
  }
  return parseHexColor(doubled);
}

}  // namespace

std::optional<std::int32_t> parseNumber(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
    text.remove_prefix(1);
  }
  std::int32_t number = 0;
  const char* const begin = text.data();
  const char* const end = begin + text.size();
  const auto parsed = std::from_chars(begin, end, number);
  return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(number) : std::nullopt;
}

std::vector<std::string> split(const std::string& text, char separator) {
  std::vector<std::string> parts(1);
  for (const char letter : text) {
    if (letter == separator) {
      parts.emplace_back();
    } else {
      parts.back() += letter;
    }
  }
  return parts;
}

std::optional<PaletteEntry> parseColor(std::string_view text) {
  if (text.starts_with('#')) {
    return parseHexDigits(text.substr(1));
  }
  const std::vector<std::string> parts = split(std::string(text), ',');
  PaletteEntry color;
  for (const Channel channel : kChannels) {
    const auto at = static_cast<std::size_t>(channel);
    const auto value = at < parts.size() ? parseNumber(parts[at]) : std::nullopt;
    if (!value || *value != clampToByte(*value)) {
      return std::nullopt;
    }
    channelOf(color, channel) = clampToByte(*value);
  }
  return parts.size() == kChannels.size() ? std::optional(color) : std::nullopt;
}

std::string refusedColor(const std::string& text) { return text + " is not a color like 255,128,0 or #FF8000"; }

std::string refusedValue(std::int32_t value, const ValueRange& range) {
  std::ostringstream text;
  text << value << " is not from " << range.minimum << " to " << range.maximum;
  return text.str();
}

std::optional<std::size_t> placeOf(const std::vector<std::string>& names, const std::string& name) {
  const auto found = std::ranges::find(names, name);
  return found == names.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - names.begin()));
}

std::optional<std::size_t> placeOfAnyCase(const std::vector<std::string>& names, const std::string& name) {
  std::vector<std::string> lowerNames;
  std::ranges::transform(names, std::back_inserter(lowerNames), inLowerCase);
  return placeOf(lowerNames, inLowerCase(name));
}

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    text += i == 0 ? "" : (i + 1 == names.size() ? " or " : ", ");
    text += names[i];
  }
  return text;
}

std::string refusedName(const std::string& name, const std::vector<std::string>& names) {
  return name + " is not " + listed(names);
}

std::expected<EntryList, std::string> EntryList::parse(const std::string& text) {
  EntryList list;
  for (const std::string& part : split(text, ',')) {
    const std::vector<std::string> ends = split(part, '-');
    const auto first = parseNumber(ends.front());
    const auto last = parseNumber(ends.back());
    if (ends.size() > 2 || !first || !last || *first > *last) {
      return Refusal(text + " is not a list of entries like 0-15,20");
    }
    list.ranges_.emplace_back(*first, *last);
  }
  return list;
}

std::expected<std::vector<std::int32_t>, std::string> EntryList::within(std::int32_t size) const {
  std::vector<std::int32_t> indexes;
  for (const auto& [first, last] : ranges_) {
    if (const auto checked = checkEntry(last, size); !checked) {
      return Refusal(checked.error());
    }
    for (std::int32_t index = first; index <= last; ++index) {
      indexes.push_back(index);
    }
  }
  return indexes;
}

std::expected<void, std::string> checkEntry(std::int32_t entry, std::int32_t size) {
  if (entry >= 0 && entry < size) {
    return {};
  }
  std::ostringstream text;
  text << "There is no entry " << entry << "; the palette has 0 to " << size - 1 << '.';
  return Refusal(text.str());
}

void addNumberOption(Verb& verb, const std::string& name, std::optional<std::int32_t>& number, const ValueRange& range,
                     const std::string& help) {
  verb.addAction({name, "N", help, [name, range, &number](const std::string& text) {
                    number = parseNumber(text);
                    if (!number || !range.contains(*number)) {
                      std::ostringstream refused;
                      refused << text << " is not a number from " << range.minimum << " to " << range.maximum;
                      refuseUsage(name, refused.str());
                    }
                  }});
}

void addColorOption(Verb& verb, const std::string& name, PaletteEntry& color, const std::string& help) {
  verb.addAction({name, "COLOR", help, [name, &color](const std::string& text) {
                    const auto parsed = parseColor(text);
                    if (!parsed) {
                      refuseUsage(name, refusedColor(text));
                    }
                    color = *parsed;
                  }});
}

}  // namespace quillhue::cli
