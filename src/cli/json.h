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

/// A JSON value; null by default. Only json.cpp includes the JSON library, which takes long to compile.
using Json = std::shared_ptr<const nlohmann::ordered_json>;

class JsonObject;

/// Text that is not valid UTF-8, such as some file names, is repaired rather than refused.
[[nodiscard]] Json jsonOf(std::string_view text);
[[nodiscard]] Json jsonOf(const JsonObject& object);
[[nodiscard]] Json jsonOf(const PaletteEntry& color);
[[nodiscard]] Json jsonOfNumber(std::int64_t number);
[[nodiscard]] Json jsonOfFlag(bool flag);
[[nodiscard]] Json jsonOf(double number);
[[nodiscard]] inline Json jsonOf(const Json& value) { return value; }

template <std::integral Number>
[[nodiscard]] Json jsonOf(Number number) {
  if constexpr (std::same_as<Number, bool>) {
    return jsonOfFlag(number);
  } else {
    return jsonOfNumber(static_cast<std::int64_t>(number));
  }
}

/// Returns an array of these values.
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

/// A JSON object whose fields keep the order in which they were added. Copies share the same fields.
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

/// Describes a palette for `info` and for verbs that report what they wrote.
[[nodiscard]] JsonObject paletteJson(const std::string& file, std::string_view format, PaletteFormat code,
                                     const Palette& palette);

/// Writes the object on one line. Adds the notes that wait in the console, if any, as "notes".
void writeJson(Console& console, JsonObject object);

}  // namespace quillhue::cli
