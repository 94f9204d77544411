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
    return Refusal(argument + " is not an entry and a color like 5=255,128,0");
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

ParsedStep parseChannel(const std::string& argument) {
  const auto equals = argument.find('=');
  const std::vector<std::string> parts = split(argument.substr(0, equals), ':');
  const auto value = equals == std::string::npos ? std::nullopt : parseNumber(argument.substr(equals + 1));
  if (parts.size() != 3 || !value) {
    return Refusal(argument + " is not an entry, a model, a channel and its value like 5:HSV:left=120");
  }
  const auto place = placeOfAnyCase(namesOf(colorModels()), parts[1]);
  if (!place) {
    return Refusal(refusedName(parts[1], namesOf(colorModels())));
  }
  const ColorModel& model = *colorModels()[*place];
  const auto name = placeOfAnyCase(channelNames(model), parts[2]);
  if (!name) {
    return Refusal(refusedName(parts[2], channelNames(model)));
  }
  const Bar bar = kBars[*name % kBars.size()];
  const ValueRange& range = model.channels[static_cast<std::size_t>(bar)].range;
  if (!range.contains(*value)) {
    return Refusal(parts[2] + ": " + refusedValue(*value, range));
  }
  return entryStepOf(
      parts[0], [index = static_cast<std::int32_t>(*place), bar, value = *value](
                    EditSession& session, std::int32_t entry) { changeChannel(session, entry, index, bar, value); });
}

ParsedStep parseUseAsBlank(const std::string& argument) { return entryStepOf(argument, *findStep("use-as-blank")); }

constexpr std::array<StepKind, 3> kSteps{{
    {"--set", "N=R,G,B", "Give entry N this color", parseSet},
    {"--channel", "N:MODEL:CHANNEL=VALUE",
     "Change a channel (left, middle, right, or its name) of entry N in a color model (listed by the verb models)",
     parseChannel},
    {"--use-as-blank", "N", "Use the color of entry N as the blank color for the following steps", parseUseAsBlank},
}};

}  // namespace

std::span<const StepKind> entrySteps() { return kSteps; }

}  // namespace quillhue::cli
