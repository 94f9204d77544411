#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quillhue {

/// An entry's number while the user types it on the grid.
class TypedEntry {
 public:
  /// Adds a digit, '0'..'9'. Ignores digits after the fourth, because no palette has that many entries.
  void add(char digit);
  /// Forgets the digits.
  void clear() { digits_.clear(); }
  [[nodiscard]] bool isEmpty() const { return digits_.empty(); }
  /// Returns the text for the status bar: "Go to 29".
  [[nodiscard]] std::string statusText() const { return "Go to " + digits_; }
  /// Returns the entry and forgets the digits. Returns nothing without digits, or if the palette has no such entry.
  [[nodiscard]] std::optional<std::int32_t> finish(std::int32_t paletteSize);

 private:
  std::string digits_;
};

}  // namespace quillhue
