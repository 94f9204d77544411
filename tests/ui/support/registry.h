#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillhue {

/// The program's settings as the system keeps them.

struct StoredValue {
  /// REG_BINARY, REG_DWORD or another.
  std::uint32_t type;
  std::vector<std::uint8_t> bytes;

  friend bool operator==(const StoredValue&, const StoredValue&) = default;
};
using StoredSettings = std::map<std::string, StoredValue>;

[[nodiscard]] StoredValue storedNumber(std::uint32_t number);
[[nodiscard]] StoredValue storedBytes(std::vector<std::uint8_t> bytes);
[[nodiscard]] StoredValue storedText(std::string_view text);
/// For the messages of failed tests.
void PrintTo(const StoredValue& value, std::ostream* stream);

/// All values of the key; nothing when it does not exist.
[[nodiscard]] std::optional<StoredSettings> storedSettings();
/// Replaces the key by these values, or deletes it.
void store(const std::optional<StoredSettings>& settings);

}  // namespace quillhue
