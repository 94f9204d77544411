#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
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

[[nodiscard]] StoredValue storedNumber(std::int32_t number);
[[nodiscard]] StoredValue storedBytes(std::vector<std::uint8_t> bytes);
/// For the messages of failed tests.
void PrintTo(const StoredValue& value, std::ostream* stream);

/// All values of the key; none when it does not exist.
[[nodiscard]] StoredSettings storedSettings();
/// Replaces the key by these values, or deletes it when there are none.
void store(const StoredSettings& settings);

}  // namespace quillhue
