#pragma once

#include <nlohmann/json.hpp>

#include "cli/console.h"
#include "core/palette.h"

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

/// Writes one value on a line of its own. Text that is not UTF-8 (a file name) is mended, not refused.
inline void writeJson(Console& console, const Json& value) {
  console.out << value.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace quillhue::cli
