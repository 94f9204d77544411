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
ParsedStep parseChoice(std::string_view step, const std::string& argument) {
  const Command* const command = findStep(step, argument);
  if (argument.empty() || command == nullptr) {
    return Refusal(refusedName(argument, stepArguments(step)));
  }
  return stepOf(*command);
}

using Argument = const std::string&;

constexpr std::array<StepKind, 7> kSteps{{
    {"--effect", "NAME=VALUE", "Apply an effect (listed by the verb effects)", parseEffect},
    {"--gradient", nullptr, "Make a gradient from the first selected color to the last",
     [](Argument) -> ParsedStep { return stepOf(*findStep("gradient")); }},
    {"--bright-gradient", nullptr, "Make a gradient that is brighter in the middle",
     [](Argument) -> ParsedStep { return stepOf(*findStep("bright-gradient")); }},
    {"--swap", "rg|gb|br", "Exchange two channels", [](Argument argument) { return parseChoice("swap", argument); }},
    {"--reverse", nullptr, "Reverse the order of the selected colors",
     [](Argument) -> ParsedStep { return stepOf(*findStep("reverse")); }},
    {"--sort", "KEY", "Sort the selected colors by intensity, red, green, blue or deviation from their mean",
     [](Argument argument) { return parseChoice("sort", argument); }},
    {"--fill", "N", "Fill the selected entries with the color of entry N",
     [](Argument argument) { return entryStepOf(argument, *findStep("fill")); }},
}};

}  // namespace

std::span<const StepKind> colorSteps() { return kSteps; }

}  // namespace quillhue::cli
