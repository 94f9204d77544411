#include "cli/json.h"

#include <nlohmann/json.hpp>

namespace quillhue::cli {

Json jsonOf(std::string_view text) {
  return {nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace)};
}

Json jsonOf(const JsonObject& object) { return {object.text()}; }

Json jsonOf(const PaletteEntry& color) {
  return jsonArray({jsonOf(color.red), jsonOf(color.green), jsonOf(color.blue)});
}

Json jsonArray(const std::vector<Json>& values) {
  std::string text;
  for (const Json& value : values) {
    text += text.empty() ? '[' : ',';
    text += value.text;
  }
  return {text.empty() ? "[]" : text + ']'};
}

JsonObject& JsonObject::addField(std::string_view name, const Json& value) {
  fields_ += fields_.empty() ? "" : ",";
  fields_ += jsonOf(name).text;
  fields_ += ':';
  fields_ += value.text;
  return *this;
}

JsonObject paletteJson(const std::string& file, std::string_view format, PaletteFormat code, const Palette& palette) {
  std::vector<Json> entries;
  for (const PaletteEntry& color : entriesOf(palette)) {
    entries.push_back(jsonOf(color));
  }
  return JsonObject()
      .add("file", file)
      .add("format", format)
      .add("code", code)
      .add("size", palette.getSize())
      .add("entries", jsonArray(entries));
}

void writeJson(Console& console, const JsonObject& object) { console.out << object.text() << '\n'; }

}  // namespace quillhue::cli
