#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quillhue {

/// Stored values of the program's settings by name. Numbers have four bytes, the lowest first.
using StoredSettings = std::map<std::string, std::vector<std::uint8_t>>;

[[nodiscard]] std::vector<std::uint8_t> storedNumber(std::int32_t number);

/// Returns all settings that have a value of their type.
[[nodiscard]] StoredSettings storedSettings();
/// Replaces all stored settings with these.
void store(const StoredSettings& settings);

}  // namespace quillhue
