#include <array>
#include <string_view>

#include "cli/steps/step.h"
#include "effects/effect_editor.h"
#include "effects/effects.h"

namespace quillhue::cli {

namespace {

StepResult applyEffect(EditSession& session, std::int32_t index, std::int32_t value) {
  EffectEditor editor(session.slot, session.tool.settings, session.tool.services.clipboard);
  editor.choose(index);
  if (!editor.effect().range().contains(value)) {
    return Refusal(refusedValue(value, editor.effect().range()) + '.');
  }
  if (effects()[static_cast<std::size_t>(index)]->readsClipboard && !session.tool.services.clipboard.get()) {
    return Refusal(kNothingToPaste);
  }
  editor.setValue(value);
  editor.apply(session.mask);
  return {};
}

ParsedStep parseEffect(const std::string& argument) {
  const auto equals = argument.find('=');
  const std::string name = argument.substr(0, equals);
  const auto place = placeOf(namesOf(effects()), name);
  if (!place) {
    return Refusal(refusedName(name, namesOf(effects())));
  }
  const EffectDescription& effect = *effects()[*place];
  const auto value = equals == std::string::npos ? std::nullopt : parseNumber(argument.substr(equals + 1));
  if (!value) {
    return Refusal(argument + " needs a number, as in " + name + '=' + std::to_string(effect.defaultValue));
  }
  if (!effect.followsPaletteSize && !effect.range.contains(*value)) {
    return Refusal(name + ": " + refusedValue(*value, effect.range));
  }
  return [index = static_cast<std::int32_t>(*place), value = *value](EditSession& session) {
    return applyEffect(session, index, value);
  };
}

// Chooses among the commands of a step by its argument.
template <const char* kStep>
ParsedStep parseChoice(const std::string& argument) {
  const Command* const command = findStep(kStep, argument);
  if (argument.empty() || command == nullptr) {
    return Refusal(refusedName(argument, stepArguments(kStep)));
  }
  return stepOf(*command);
}
constexpr char kSwap[] = "swap";
constexpr char kSort[] = "sort";

template <const char* kStep>
ParsedStep parseCommand(const std::string& /*argument*/) {
  return stepOf(*findStep(kStep));
}
constexpr char kGradient[] = "gradient";
constexpr char kBrightGradient[] = "bright-gradient";
constexpr char kReverse[] = "reverse";

ParsedStep parseFill(const std::string& argument) { return entryStepOf(argument, *findStep("fill")); }

constexpr std::array<StepKind, 7> kSteps{{
    {"--effect", "NAME=VALUE", "Apply an effect (listed by the verb effects)", parseEffect},
    {"--gradient", nullptr, "Make a gradient from the first selected color to the last", parseCommand<kGradient>},
    {"--bright-gradient", nullptr, "Make a gradient that is brighter in the middle", parseCommand<kBrightGradient>},
    {"--swap", "rg|gb|br", "Exchange two channels", parseChoice<kSwap>},
    {"--reverse", nullptr, "Reverse the order of the selected colors", parseCommand<kReverse>},
    {"--sort", "KEY", "Sort the selected colors by intensity, red, green, blue or deviation from their mean",
     parseChoice<kSort>},
    {"--fill", "N", "Fill the selected entries with the color of entry N", parseFill},
}};

}  // namespace

std::span<const StepKind> colorSteps() { return kSteps; }

}  // namespace quillhue::cli
