#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/palette_entry.h"

namespace quillhue::cli {

/// A decimal number, with a sign or without; nothing when `text` is anything else.
[[nodiscard]] std::optional<std::int32_t> parseNumber(std::string_view text);

/// The parts between separators, at least one.
[[nodiscard]] std::vector<std::string> split(const std::string& text, char separator);

/// "R,G,B", each 0..255; nothing when `text` is anything else.
[[nodiscard]] std::optional<PaletteEntry> parseColor(std::string_view text);

/// A, or B: what is told to be allowed.
[[nodiscard]] std::string listed(std::span<const std::string> names);

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

/// Adds an option that takes a color.
void addColorOption(CLI::App& verb, const std::string& name, PaletteEntry& color, const std::string& help);

}  // namespace quillhue::cli
