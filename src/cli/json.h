#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console.h"
#include "core/palette.h"
#include "core/palette_format.h"

namespace quillhue::cli {

/// A value in JSON; the default is null. Only json.cpp includes the library behind it, which takes long to compile.
using Json = std::shared_ptr<const nlohmann::ordered_json>;

class JsonObject;

/// Text that is not UTF-8 (a file name) is mended, not refused.
[[nodiscard]] Json jsonOf(std::string_view text);
[[nodiscard]] Json jsonOf(const JsonObject& object);
[[nodiscard]] Json jsonOf(const PaletteEntry& color);
[[nodiscard]] Json jsonOfNumber(std::int64_t number);
[[nodiscard]] Json jsonOfFlag(bool flag);
[[nodiscard]] inline Json jsonOf(const Json& value) { return value; }

template <std::integral Number>
[[nodiscard]] Json jsonOf(Number number) {
  if constexpr (std::same_as<Number, bool>) {
    return jsonOfFlag(number);
  } else {
    return jsonOfNumber(static_cast<std::int64_t>(number));
  }
}

/// The array of such values.
[[nodiscard]] Json jsonArray(const std::vector<Json>& values);

template <typename Value>
[[nodiscard]] Json jsonOf(const std::vector<Value>& values) {
  std::vector<Json> converted;
  converted.reserve(values.size());
  for (const Value& value : values) {
    converted.push_back(jsonOf(value));
  }
  return jsonArray(converted);
}

/// An object whose fields stay in the order in which they are added. Copies are the same object.
class JsonObject {
 public:
  JsonObject();

  template <typename Value>
  JsonObject& add(std::string_view name, const Value& value) {
    return addField(name, jsonOf(value));
  }

  [[nodiscard]] Json value() const { return fields_; }

 private:
  JsonObject& addField(std::string_view name, const Json& value);

  std::shared_ptr<nlohmann::ordered_json> fields_;
};

/// What `info` tells of a palette, and what was written tells of itself.
[[nodiscard]] JsonObject paletteJson(const std::string& file, std::string_view format, PaletteFormat code,
                                     const Palette& palette);

/// Writes one object on a line of its own.
void writeJson(Console& console, const JsonObject& object);

}  // namespace quillhue::cli
