#include <algorithm>
#include <array>
#include <iterator>

#include "cli/steps/step.h"
#include "colormodes/channel_editor.h"
#include "colormodes/color_models.h"
#include "core/commands/colors.h"
#include "core/commands/exchange.h"

namespace quillhue::cli {

namespace {

// Does nothing, because the tool has no controls.
class NoView final : public ChannelView {
  void showChannel(Bar /*bar*/, const ValueRange& /*range*/, std::int32_t /*value*/) override {}
  void entryChanged(std::int32_t /*index*/) override {}
};

ParsedStep parseSet(const std::string& argument) {
  const auto equals = argument.find('=');
  const auto color = equals == std::string::npos ? std::nullopt : parseColor(argument.substr(equals + 1));
  if (!color) {
    return Refusal(argument + " is not an entry and a color like 5=255,128,0 or 5=#FF8000");
  }
  return entryStepOf(argument.substr(0, equals), [color = *color](EditSession& session, std::int32_t entry) {
    replaceColor(session.document(), entry, color);
  });
}

// Returns the names of the channels: their places, then the model's own names.
std::vector<std::string> channelNames(const ColorModel& model) {
  std::vector<std::string> names{"left", "middle", "right"};
  std::ranges::copy(namesOf(model.channels), std::back_inserter(names));
  return names;
}

// Repeated changes of the same entry in the same model keep the numbers set before, as in the window. They may hold
// more than the color does, such as the hue of a grey.
void changeChannel(EditSession& session, std::int32_t entry, std::int32_t model, Bar bar, std::int32_t value) {
  static NoView view;
  const bool isSame = session.channels != nullptr && session.channels->currentEntry() == entry &&
                      session.tool.settings.colorMode == model;
  if (isSame) {
    session.channels->endRun();
  } else {
    session.tool.settings.colorMode = static_cast<std::uint8_t>(model);
    session.channels = std::make_unique<ChannelEditor>(session.slot, session.tool.settings, view);
    session.channels->setCurrentEntry(entry);
  }
  session.channels->changeChannel(bar, value);
}

// A channel of a color model.
struct ModelChannel {
  std::int32_t model;
  Bar bar;
  ValueRange range;
};

std::expected<ModelChannel, std::string> parseModelChannel(const std::string& modelName,
                                                           const std::string& channelName) {
  const auto place = placeOfAnyCase(namesOf(colorModels()), modelName);
  if (!place) {
    return Refusal(refusedName(modelName, namesOf(colorModels())));
  }
  const ColorModel& model = *colorModels()[*place];
  const auto name = placeOfAnyCase(channelNames(model), channelName);
  if (!name) {
    return Refusal(refusedName(channelName, channelNames(model)));
  }
  const std::size_t bar = *name % kBars.size();
  return ModelChannel{static_cast<std::int32_t>(*place), kBars[bar], model.channels[bar].range};
}

ParsedStep parseChannel(const std::string& argument) {
  const auto equals = argument.find('=');
  const std::vector<std::string> parts = split(argument.substr(0, equals), ':');
  const std::string number = equals == std::string::npos ? std::string() : argument.substr(equals + 1);
  const auto value = parseNumber(number);
  if (parts.size() != 3 || !value) {
    return Refusal(argument + " is not an entry, a model, a channel and its value like 5:HSV:left=120");
  }
  const auto channel = parseModelChannel(parts[1], parts[2]);
  if (!channel) {
    return Refusal(channel.error());
  }
  if (number[0] == '+' || (number[0] == '-' && channel->range.minimum == 0)) {
    return Refusal(argument +
                   " has a sign, but --channel sets the number. To add to the selected entries, use --shift " +
                   parts[1] + ':' + parts[2] + '=' + number);
  }
  if (!channel->range.contains(*value)) {
    return Refusal(parts[2] + ": " + refusedValue(*value, channel->range));
  }
  return entryStepOf(parts[0], [channel = *channel, value = *value](EditSession& session, std::int32_t entry) {
    changeChannel(session, entry, channel.model, channel.bar, value);
  });
}

// A hue goes round its circle; other numbers stop at the ends of their range.
std::int32_t shifted(std::int32_t value, std::int32_t amount, const ModelChannel& channel) {
  const std::int64_t sum = std::int64_t{value} + amount;
  const std::int64_t circle = kHueRange.maximum + 1;
  return channel.range == kHueRange ? static_cast<std::int32_t>((sum % circle + circle) % circle)
                                    : channel.range.clamp(sum);
}

void shiftSelection(EditSession& session, const ModelChannel& channel, std::int32_t amount) {
  PaletteDocument& document = session.document();
  std::unique_ptr<ColorMode> owner;
  ColorMode& mode = createColorMode(channel.model, 0, session.slot, owner);
  const std::vector<std::int32_t> indexes = selectedIndexes(document.getPalette());
  document.recordColors();
  for (const std::int32_t index : indexes) {
    const PaletteEntry color = document.getColor(index);
    mode.setEntry(index);
    const std::int32_t value = mode.getValue(channel.bar);
    const std::int32_t sum = shifted(value, amount, channel);
    if (sum != value) {
      mode.setValue(channel.bar, sum);
      document.setColor(index, withChannels(color, session.mask, document.getColor(index)));
    }
  }
}

ParsedStep parseShift(const std::string& argument) {
  const auto equals = argument.find('=');
  const std::vector<std::string> parts = split(argument.substr(0, equals), ':');
  const auto amount = equals == std::string::npos ? std::nullopt : parseNumber(argument.substr(equals + 1));
  if (parts.size() != 2 || !amount) {
    return Refusal(argument + " is not a model, a channel and what to add like HSV:hue=+30");
  }
  const auto channel = parseModelChannel(parts[0], parts[1]);
  if (!channel) {
    return Refusal(channel.error());
  }
  return stepOf(
      [channel = *channel, amount = *amount](EditSession& session) { shiftSelection(session, channel, amount); });
}

ParsedStep parseUseAsBlank(const std::string& argument) { return entryStepOf(argument, *findStep("use-as-blank")); }

constexpr std::array<StepKind, 4> kSteps{{
    {"--set", "N=COLOR", "Give entry N this color", parseSet},
    {"--channel", "N:MODEL:CHANNEL=VALUE",
     "Change a channel (left, middle, right, or its name) of entry N in a color model (listed by the verb models)",
     parseChannel},
    {"--shift", "MODEL:CHANNEL=+N",
     "Add to a channel of the selected entries in a color model; a hue goes round, other channels stop at their limits",
     parseShift},
    {"--use-as-blank", "N", "Use the color of entry N as the blank color for the following steps", parseUseAsBlank},
}};

}  // namespace

std::span<const StepKind> entrySteps() { return kSteps; }

}  // namespace quillhue::cli
