#include <array>
#include <string_view>

#include "cli/steps/step.h"
#include "core/commands/colors.h"
#include "core/commands/order.h"
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

struct Swap {
  std::string_view name;
  Channel one;
  Channel other;
};
constexpr std::array<Swap, 3> kSwaps{
    {{"rg", Channel::red, Channel::green}, {"gb", Channel::green, Channel::blue}, {"br", Channel::blue, Channel::red}}};

ParsedStep parseSwap(const std::string& argument) {
  const Swap* const swap = findByName(kSwaps, argument);
  if (swap == nullptr) {
    return Refusal(refusedName(argument, namesOf(kSwaps)));
  }
  return stepOf([swap](EditSession& session) { swapChannels(session.document(), swap->one, swap->other); });
}

struct SortKey {
  std::string_view name;
  void (*sort)(PaletteDocument& document, ChannelMask mask);
};
template <Channel kKey>
void sortBy(PaletteDocument& document, ChannelMask mask) {
  sortByChannel(document, kKey, mask);
}
constexpr std::array<SortKey, 5> kSortKeys{{{"intensity", sortByIntensity},
                                            {"red", sortBy<Channel::red>},
                                            {"green", sortBy<Channel::green>},
                                            {"blue", sortBy<Channel::blue>},
                                            {"deviation", sortByDeviation}}};

ParsedStep parseSort(const std::string& argument) {
  const SortKey* const key = findByName(kSortKeys, argument);
  if (key == nullptr) {
    return Refusal(refusedName(argument, namesOf(kSortKeys)));
  }
  return stepOf([key](EditSession& session) { key->sort(session.document(), session.mask); });
}

template <void (*kCommand)(PaletteDocument& document, ChannelMask mask)>
ParsedStep parseCommand(const std::string& /*argument*/) {
  return stepOf([](EditSession& session) { kCommand(session.document(), session.mask); });
}

ParsedStep parseFill(const std::string& argument) {
  return entryStepOf(argument,
                     [](EditSession& session, std::int32_t entry) { fill(session.document(), session.mask, entry); });
}

constexpr std::array<StepKind, 7> kSteps{{
    {"--effect", "NAME=VALUE", "Apply an effect; the verb effects lists them", parseEffect},
    {"--gradient", nullptr, "Lead from the first selected color to the last one", parseCommand<gradient>},
    {"--bright-gradient", nullptr, "The same, brighter in the middle", parseCommand<brightGradient>},
    {"--swap", "rg|gb|br", "Exchange two channels", parseSwap},
    {"--reverse", nullptr, "Reverse the order of the selected colors", parseCommand<reverseSelection>},
    {"--sort", "KEY", "Sort the selected colors by intensity, red, green, blue or deviation (from their mean)",
     parseSort},
    {"--fill", "N", "Fill the selected entries with the color of entry N", parseFill},
}};

}  // namespace

std::span<const StepKind> colorSteps() { return kSteps; }

}  // namespace quillhue::cli
