#include <iomanip>

#include "cli/json.h"
#include "cli/list_verb.h"
#include "cli/verbs.h"
#include "effects/effects.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual = R"(Use an effect with the step --effect of the verb edit.

    quillhue-cli effects
    quillhue-cli edit sea.gpl day.gpl --effect brightness=20

)";

void showJson(Console& console) {
  for (const EffectDescription* effect : effects()) {
    const bool bySize = effect->followsPaletteSize;
    writeJson(console, JsonObject()
                           .add("name", effect->name)
                           .add("label", effect->label)
                           .add("minimum", bySize ? Json() : jsonOf(effect->range.minimum))
                           .add("maximum", bySize ? Json() : jsonOf(effect->range.maximum))
                           .add("default", effect->defaultValue)
                           .add("meaning", effect->meaning));
  }
}

void showText(Console& console) {
  console.out << "Effects (name for --effect, least and greatest value, default, what the value is):\n";
  for (const EffectDescription* effect : effects()) {
    const bool bySize = effect->followsPaletteSize;
    std::string range = bySize ? "-size" : std::to_string(effect->range.minimum);
    range += "..";
    range += bySize ? "size" : std::to_string(effect->range.maximum);
    console.out << "  " << std::left << std::setw(20) << effect->name << std::setw(13) << range << std::setw(5)
                << effect->defaultValue << effect->meaning << '\n';
  }
}

}  // namespace

void addEffectsVerb(CommandLine& tool, Console& console, ExitStatus& /*status*/) {
  addListVerb(tool, console,
              {
                  .name = "effects",
                  .help = "List the effects: name, values, default",
                  .jsonHelp = "Write JSON, one object a line for each effect",
                  .manual = kManual,
                  .showText = showText,
                  .showJson = showJson,
              });
}

}  // namespace quillhue::cli
