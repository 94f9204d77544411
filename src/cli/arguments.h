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

/// A decimal number, with a sign or without; nothing when `text` is anything else or out of 32 bits.
[[nodiscard]] std::optional<std::int32_t> parseNumber(std::string_view text);

/// The parts between separators, at least one.
[[nodiscard]] std::vector<std::string> split(const std::string& text, char separator);

/// "R,G,B", each 0..255; nothing when `text` is anything else.
[[nodiscard]] std::optional<PaletteEntry> parseColor(std::string_view text);

/// "x is not a color like 255,128,0".
[[nodiscard]] std::string refusedColor(const std::string& text);
/// "300 is not from 0 to 255".
[[nodiscard]] std::string refusedValue(std::int32_t value, const ValueRange& range);

/// The rows of a catalogue, or pointers to them, by their member `name`.
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

/// The place of `name` among the names; nothing when it is none of them.
[[nodiscard]] std::optional<std::size_t> placeOf(const std::vector<std::string>& names, const std::string& name);
/// The same, with a to z taken for A to Z.
[[nodiscard]] std::optional<std::size_t> placeOfAnyCase(const std::vector<std::string>& names, const std::string& name);

/// "x is not a, b or c".
[[nodiscard]] std::string refusedName(const std::string& name, const std::vector<std::string>& names);

/// Entries of a palette as written in "0-15,20": first and last index of each part.
class EntryList {
 public:
  /// Refuses, with what is allowed, anything but indexes and rising ranges of them.
  [[nodiscard]] static std::expected<EntryList, std::string> parse(const std::string& text);

  /// The indexes, as they are written. Refused when a palette of `size` entries has not all of them.
  [[nodiscard]] std::expected<std::vector<std::int32_t>, std::string> within(std::int32_t size) const;

 private:
  std::vector<std::pair<std::int32_t, std::int32_t>> ranges_;
};

/// Refuses an entry that a palette of `size` entries has not.
[[nodiscard]] std::expected<void, std::string> checkEntry(std::int32_t entry, std::int32_t size);

/// Adds an option that takes a whole number in decimal digits.
void addNumberOption(Verb& verb, const std::string& name, std::optional<std::int32_t>& number, const ValueRange& range,
                     const std::string& help);

/// Adds an option that takes a color.
void addColorOption(Verb& verb, const std::string& name, PaletteEntry& color, const std::string& help);

}  // namespace quillhue::cli
