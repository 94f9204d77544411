#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "cli/command_line.h"
#include "core/palette_entry.h"
#include "core/value_range.h"

namespace quillhue::cli {

/// Parses a decimal number with an optional sign; empty for any other text and for numbers beyond 32 bits.
[[nodiscard]] std::optional<std::int32_t> parseNumber(std::string_view text);

/// Splits the text at each separator into at least one part.
[[nodiscard]] std::vector<std::string> split(const std::string& text, char separator);

/// Parses "R,G,B" with each 0..255, "#RRGGBB" or "#RGB"; empty for any other text.
[[nodiscard]] std::optional<PaletteEntry> parseColor(std::string_view text);

/// Returns "x is not a color like 255,128,0 or #FF8000".
[[nodiscard]] std::string refusedColor(const std::string& text);
/// Returns "300 is not from 0 to 255".
[[nodiscard]] std::string refusedValue(std::int32_t value, const ValueRange& range);

/// Collects the member `name` from the rows of a catalogue, or from pointers to them.
template <typename Rows>
std::vector<std::string> namesOf(const Rows& rows) {
  std::vector<std::string> names;
  names.reserve(std::size(rows));
  for (const auto& row : rows) {
    if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(row)>>) {
      names.emplace_back(row->name);
    } else {
      names.emplace_back(row.name);
    }
  }
  return names;
}

/// Returns the index of `name` in `names`, or nothing.
[[nodiscard]] std::optional<std::size_t> placeOf(const std::vector<std::string>& names, const std::string& name);
/// The same, ignoring case.
[[nodiscard]] std::optional<std::size_t> placeOfAnyCase(const std::vector<std::string>& names, const std::string& name);

/// Returns "a, b or c".
[[nodiscard]] std::string listed(const std::vector<std::string>& names);
/// Returns "x is not a, b or c".
[[nodiscard]] std::string refusedName(const std::string& name, const std::vector<std::string>& names);

/// A list of palette entries as in "0-15,20".
class EntryList {
 public:
  /// Parses indexes and ascending ranges of them. Refuses any other text with a message that says what is allowed.
  [[nodiscard]] static std::expected<EntryList, std::string> parse(const std::string& text);

  /// Returns the indexes in their written order. Refused if any of them is not in a palette of `size` entries.
  [[nodiscard]] std::expected<std::vector<std::int32_t>, std::string> within(std::int32_t size) const;

 private:
  std::vector<std::pair<std::int32_t, std::int32_t>> ranges_;
};

/// Refuses an entry that is not in a palette of `size` entries.
[[nodiscard]] std::expected<void, std::string> checkEntry(std::int32_t entry, std::int32_t size);

/// Adds an option whose argument is a decimal integer.
void addNumberOption(Verb& verb, const std::string& name, std::optional<std::int32_t>& number, const ValueRange& range,
                     const std::string& help);

/// Adds an option whose argument is a color.
void addColorOption(Verb& verb, const std::string& name, PaletteEntry& color, const std::string& help);

}  // namespace quillhue::cli
