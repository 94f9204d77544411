#include "cli/json.h"

#include <nlohmann/json.hpp>

namespace quillhue::cli {

namespace {

using nlohmann::ordered_json;

ordered_json valueOf(const Json& json) { return json ? *json : ordered_json(); }

Json make(ordered_json value) { return std::make_shared<const ordered_json>(std::move(value)); }

}  // namespace

Json jsonOf(std::string_view text) { return make(text); }

Json jsonOf(const JsonObject& object) { return object.value(); }

Json jsonOf(const PaletteEntry& color) { return make({color.red, color.green, color.blue}); }

Json jsonOfNumber(std::int64_t number) { return make(number); }

Json jsonOfFlag(bool flag) { return make(flag); }

Json jsonOf(double number) { return make(number); }

Json jsonArray(const std::vector<Json>& values) {
  ordered_json array = ordered_json::array();
  for (const Json& value : values) {
    array.push_back(valueOf(value));
  }
  return make(std::move(array));
}

JsonObject::JsonObject() : fields_(std::make_shared<ordered_json>(ordered_json::object())) {}

JsonObject& JsonObject::addField(std::string_view name, const Json& value) {
  (*fields_)[std::string(name)] = valueOf(value);
  return *this;
}

JsonObject paletteJson(const std::string& file, std::string_view format, PaletteFormat code, const Palette& palette) {
  return JsonObject()
      .add("file", file)
      .add("format", format)
      .add("code", code)
      .add("size", palette.getSize())
      .add("entries", entriesOf(palette));
}

void writeJson(Console& console, JsonObject object) {
  const std::vector<std::string> notes = std::exchange(console.notes.lines, {});
  if (!notes.empty()) {
    object.add("notes", notes);
  }
  console.out << object.value()->dump(-1, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace quillhue::cli
