#include "cli/arguments.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace quillhue::cli {

std::optional<PaletteEntry> parseColor(std::string_view text) {
  std::array<std::uint8_t, 3> values{};
  const char* at = text.data();
  const char* const end = at + text.size();
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0) {
      if (at == end || *at != ',') {
        return std::nullopt;
      }
      ++at;
    }
    const auto parsed = std::from_chars(at, end, values[i]);
    if (parsed.ec != std::errc()) {
      return std::nullopt;
    }
    at = parsed.ptr;
  }
  return at == end ? std::optional(PaletteEntry{values[0], values[1], values[2]}) : std::nullopt;
}

}  // namespace quillhue::cli
