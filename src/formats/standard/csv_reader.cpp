#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string>
#include <vector>

#include "formats/hex_color.h"
#include "formats/standard/color_text.h"
#include "formats/standard/standard_formats.h"
#include "formats/text_lines.h"

// Layout: RFC 4180: lines of fields separated by commas; here semicolons and tabs separate them too. A color is a field
// "#rrggbb" or three fields of decimal numbers: those that a header line calls red, green and blue, or the first three
// in a row. No standard defines palettes in such files.

namespace quillhue {

namespace {

using Fields = std::vector<std::string>;

bool matches(const ReaderInput& input) { return nameEndsWith(input.name, "CSV"); }

// Removes the quotes around a field. Two quotes inside it mean one.
Fields fieldsOf(std::string_view line) {
  Fields fields(1);
  bool isQuoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char letter = line[i];
    if (letter == '"') {
      const bool isDoubled = isQuoted && i + 1 < line.size() && line[i + 1] == '"';
      if (isDoubled) {
        fields.back() += line[++i];
      } else {
        isQuoted = !isQuoted;
      }
    } else if (!isQuoted && (letter == ',' || letter == ';' || letter == '\t')) {
      fields.emplace_back();
    } else {
      fields.back() += letter;
    }
  }
  return fields;
}

// The indexes of the fields for red, green and blue.
using Columns = std::array<std::size_t, 3>;

// Returns the columns that a header line calls "red" or "r" and so on, or nothing if one is missing.
std::optional<Columns> columnsNamedIn(const Fields& header) {
  constexpr std::array<std::string_view, 3> kNames{"red", "green", "blue"};
  Columns columns;
  for (std::size_t channel = 0; channel < kNames.size(); ++channel) {
    const auto named = std::ranges::find_if(header, [&](const std::string& field) {
      std::string name(trimmed(field));
      std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
      return !name.empty() && (name == kNames[channel] || name == kNames[channel].substr(0, 1));
    });
    if (named == header.end()) {
      return std::nullopt;
    }
    columns[channel] = static_cast<std::size_t>(named - header.begin());
  }
  return columns;
}

std::optional<PaletteEntry> colorIn(const Fields& fields, const Columns& columns) {
  PaletteEntry color;
  for (const Channel channel : kChannels) {
    const std::size_t column = columns[static_cast<std::size_t>(channel)];
    const auto value = column < fields.size() ? parseByte(trimmed(fields[column])) : std::nullopt;
    if (!value) {
      return std::nullopt;
    }
    channelOf(color, channel) = *value;
  }
  return color;
}

// Reads the named columns, or else the first "#rrggbb", or else the first three numbers in a row.
std::optional<PaletteEntry> colorOf(const Fields& fields, const std::optional<Columns>& named) {
  if (named) {
    return colorIn(fields, *named);
  }
  for (const std::string& field : fields) {
    const std::string_view text = trimmed(field);
    if (text.starts_with('#')) {
      return parseHexColor(text.substr(1));
    }
  }
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (const auto color = colorIn(fields, {i, i + 1, i + 2})) {
      return color;
    }
  }
  return parseColorLine(fields.front());
}

bool isBlank(const Fields& fields) {
  return std::ranges::all_of(fields, [](const std::string& field) { return trimmed(field).empty(); });
}

ReadResult read(const ReaderInput& input) {
  TextLines lines(input.source);
  ListedEntries entries;
  std::optional<Columns> named;
  bool mayBeHeader = true;
  while (const auto line = entries.isCut() ? std::nullopt : lines.next()) {
    const Fields fields = fieldsOf(*line);
    if (isBlank(fields)) {
      continue;
    }
    if (const auto color = colorOf(fields, named)) {
      entries.add(*color);
    } else if (mayBeHeader) {
      named = columnsNamedIn(fields);
    } else {
      return std::unexpected(Failure::csvInvalid);
    }
    mayBeHeader = false;
  }
  return entries.result(Failure::csvInvalid, palette_format::kCsv | palette_format::kMayHoldMore);
}

}  // namespace

constinit const PaletteReader kStandardCsvReader{
    "csv", "Comma-separated values", "name ends with CSV", "*.csv", matches, read};

}  // namespace quillhue
