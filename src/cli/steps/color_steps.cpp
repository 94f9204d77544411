#include <algorithm>
#include <array>
#include <sstream>
#include <string_view>

#include "cli/steps/step.h"
#include "core/commands/colors.h"
#include "core/commands/order.h"
#include "effects/effect_editor.h"
#include "effects/effects.h"

namespace quillhue::cli {

namespace {

// What the message of a value out of range says.
std::string allowedValues(std::int32_t value, EffectRange range) {
  std::ostringstream text;
  text << value << " is not from " << range.minimum << " to " << range.maximum;
  return text.str();
}

StepResult applyEffect(EditSession& session, std::int32_t index, std::int32_t value) {
  EffectEditor editor(session.slot, session.tool.settings, session.tool.services.clipboard);
  editor.choose(index);
  const EffectRange range{editor.effect().getMinimum(), editor.effect().getMaximum()};
  if (value < range.minimum || value > range.maximum) {
    return Refusal(allowedValues(value, range) + '.');
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
  const auto kinds = effects();
  const auto found = std::ranges::find(kinds, name, &EffectDescription::name);
  if (found == kinds.end()) {
    std::vector<std::string> names;
    for (const EffectDescription* effect : kinds) {
      names.emplace_back(effect->name);
    }
    return Refusal(name + " is not " + listed(names));
  }
  const EffectDescription& effect = **found;
  const auto value = equals == std::string::npos ? std::nullopt : parseNumber(argument.substr(equals + 1));
  if (!value) {
    return Refusal(argument + " needs a number, as in " + name + '=' + std::to_string(effect.defaultValue));
  }
  if (!followsPaletteSize(effect) && (*value < effect.range.minimum || *value > effect.range.maximum)) {
    return Refusal(name + ": " + allowedValues(*value, effect.range));
  }
  const auto index = static_cast<std::int32_t>(found - kinds.begin());
  return [index, value = *value](EditSession& session) { return applyEffect(session, index, value); };
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
    return refuseName(kSwaps, argument);
  }
  return stepOf([swap](EditSession& session) { swapChannels(session.document(), swap->one, swap->other); });
}

struct SortKey {
  std::string_view name;
  void (*sort)(PaletteDocument& document, ChannelMask mask);
};
template <ChannelMask kKey>
void sortBy(PaletteDocument& document, ChannelMask mask) {
  sortByChannels(document, kKey, mask);
}
constexpr std::array<SortKey, 5> kSortKeys{
    {{"intensity", [](PaletteDocument& document, ChannelMask mask) { sortByChannels(document, mask, mask); }},
     {"red", sortBy<maskOf(Channel::red)>},
     {"green", sortBy<maskOf(Channel::green)>},
     {"blue", sortBy<maskOf(Channel::blue)>},
     {"deviation", sortByDeviation}}};

ParsedStep parseSort(const std::string& argument) {
  const SortKey* const key = findByName(kSortKeys, argument);
  if (key == nullptr) {
    return refuseName(kSortKeys, argument);
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
