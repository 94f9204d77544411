#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "cli/steps/step.h"
#include "core/commands/depth.h"
#include "core/commands/order.h"
#include "core/commands/ramp.h"
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

// The ascending sorts of the catalogue have rules of their own for equal keys and for channels outside --channels.
ParsedStep parseSort(const std::string& argument) {
  const auto place = placeOf(namesOf(sortKeys()), argument);
  if (!place) {
    return Refusal(refusedName(argument, namesOf(sortKeys())));
  }
  return stepOf([&key = sortKeys()[*place], command = findStep("sort", argument)](EditSession& session) {
    if (command != nullptr && !session.modifiers.descending) {
      command->change(session.commandInput());
    } else {
      sortByKey(session.document(), key, session.modifiers.descending, session.mask);
    }
  });
}

ParsedStep parseRamp(const std::string& argument) {
  const std::vector<std::string> ends = split(argument, '-');
  const auto from = parseNumber(ends.front());
  const auto to = parseNumber(ends.back());
  if (ends.size() != 2 || !from || !to) {
    return Refusal(argument + " is not two entries like 8-15");
  }
  return [from = *from, to = *to](EditSession& session) -> StepResult {
    for (const std::int32_t entry : {from, to}) {
      if (auto checked = checkEntry(entry, session.document().getSize()); !checked) {
        return checked;
      }
    }
    ramp(session.document(), session.mask, from, to, *session.modifiers.space);
    return {};
  };
}

ParsedStep parseSpace(const std::string& argument) {
  const auto place = placeOf(namesOf(rampSpaces()), argument);
  if (!place) {
    return Refusal(refusedName(argument, namesOf(rampSpaces())));
  }
  return stepOf([space = &rampSpaces()[*place]](EditSession& session) { session.modifiers.space = space; });
}

// Parses "bits:R,G,B"; empty for any other text.
std::optional<ChannelBits> parseBits(const std::string& text) {
  constexpr std::string_view kBits = "bits:";
  const std::vector<std::string> parts = split(text.substr(std::min(kBits.size(), text.size())), ',');
  ChannelBits bits{};
  if (!text.starts_with(kBits) || parts.size() != bits.size()) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < bits.size(); ++i) {
    const auto number = parseNumber(parts[i]);
    if (!number || !kBitsRange.contains(*number)) {
      return std::nullopt;
    }
    bits[i] = *number;
  }
  return bits;
}

ParsedStep parseDepth(const std::string& argument) {
  std::vector<std::string> names = namesOf(colorDepths());
  const auto place = placeOf(names, argument);
  const auto bits = place ? colorDepths()[*place].bits : parseBits(argument);
  if (!bits) {
    names.emplace_back("bits like bits:5,6,5 from 1 to 8");
    return Refusal(refusedName(argument, names));
  }
  return stepOf([bits = *bits](EditSession& session) { reduceDepth(session.document(), session.mask, bits); });
}

using Argument = const std::string&;

constexpr std::array<StepKind, 11> kSteps{{
    {"--effect", "NAME=VALUE", "Apply an effect (listed by the verb effects)", parseEffect},
    {"--gradient", nullptr, "Make a gradient from the first selected color to the last",
     [](Argument) -> ParsedStep { return stepOf(*findStep("gradient")); }},
    {"--bright-gradient", nullptr, "Make a gradient that is brighter in the middle",
     [](Argument) -> ParsedStep { return stepOf(*findStep("bright-gradient")); }},
    {"--swap", "rg|gb|br", "Exchange two channels", [](Argument argument) { return parseChoice("swap", argument); }},
    {"--reverse", nullptr, "Reverse the order of the selected colors",
     [](Argument) -> ParsedStep { return stepOf(*findStep("reverse")); }},
    {"--sort", "KEY",
     "Sort the selected colors by intensity, red, green, blue, deviation from their mean, hue (grays first), "
     "saturation, value, luma or oklab-lightness",
     parseSort},
    {"--descending", nullptr, "After --sort: from the greatest to the least",
     [](Argument) -> ParsedStep { return stepOf([](EditSession& session) { session.modifiers.descending = true; }); },
     "--sort"},
    {"--ramp", "A-B", "Fill the entries between A and B, selected or not, with a ramp of their colors", parseRamp},
    {"--space", "NAME", "After --ramp: mix the colors in rgb (default), hsv (the shorter way round) or oklab",
     parseSpace, "--ramp"},
    {"--depth", "NAME",
     "Round the selected colors to those of hardware: rgb444, rgb555, rgb565, vga6, rgb332, or bits:R,G,B", parseDepth},
    {"--fill", "N", "Fill the selected entries with the color of entry N",
     [](Argument argument) { return entryStepOf(argument, *findStep("fill")); }},
}};

}  // namespace

std::span<const StepKind> colorSteps() { return kSteps; }

}  // namespace quillhue::cli
