#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "cli/console.h"
#include "core/palette.h"
#include "core/palette_format.h"

namespace quillhue::cli {

/// Fields stay in the order in which they are set.
using Json = nlohmann::ordered_json;

[[nodiscard]] inline Json colorJson(const PaletteEntry& color) { return {color.red, color.green, color.blue}; }

[[nodiscard]] inline Json entriesJson(const Palette& palette) {
  Json entries = Json::array();
  for (const PaletteEntry& color : entriesOf(palette)) {
    entries.push_back(colorJson(color));
  }
  return entries;
}

/// What `info` tells of a palette, and what was written tells of itself.
[[nodiscard]] inline Json paletteJson(const std::string& file, std::string_view format, PaletteFormat code,
                                      const Palette& palette) {
  return {{"file", file},
          {"format", format},
          {"code", code},
          {"size", palette.getSize()},
          {"entries", entriesJson(palette)}};
}

/// Writes one value on a line of its own. Text that is not UTF-8 (a file name) is mended, not refused.
inline void writeJson(Console& console, const Json& value) {
  console.out << value.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace quillhue::cli
