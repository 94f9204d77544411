#include <array>
#include <sstream>

#include "cli/model_names.h"
#include "cli/steps/step.h"
#include "colormodes/channel_editor.h"
#include "colormodes/color_models.h"
#include "core/commands/colors.h"
#include "core/commands/exchange.h"

namespace quillhue::cli {

namespace {

// The editor has no controls here.
class NoView final : public ChannelView {
  void showChannel(Bar /*bar*/, const ChannelRange& /*range*/, std::int32_t /*value*/) override {}
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

// The channel by its place, or by its name in the model.
std::optional<Bar> findBar(const ColorModel& model, const std::string& name) {
  constexpr std::array<std::string_view, 3> kPlaces{"left", "middle", "right"};
  for (const Bar bar : kBars) {
    const auto at = static_cast<std::size_t>(bar);
    if (name == kPlaces[at] || name == model.channels[at].name) {
      return bar;
    }
  }
  return std::nullopt;
}

std::string channelNames(const ColorModel& model) {
  std::vector<std::string> names{"left", "middle", "right"};
  for (const ChannelDescription& channel : model.channels) {
    names.emplace_back(channel.name);
  }
  return listed(names);
}

ParsedStep parseChannel(const std::string& argument) {
  const auto equals = argument.find('=');
  const std::vector<std::string> parts = split(argument.substr(0, equals), ':');
  const auto value = equals == std::string::npos ? std::nullopt : parseNumber(argument.substr(equals + 1));
  if (parts.size() != 3 || !value) {
    return Refusal(argument + " is not an entry, a model, a channel and its value like 5:HSV:left=120");
  }
  const auto model = findModel(parts[1]);
  if (!model) {
    return Refusal(parts[1] + " is not " + listed(modelNames()));
  }
  const ColorModel& description = colorModelOf(*model);
  const auto bar = findBar(description, parts[2]);
  if (!bar) {
    return Refusal(parts[2] + " is not " + channelNames(description));
  }
  const auto [minimum, maximum] = description.channels[static_cast<std::size_t>(*bar)].range;
  if (*value < minimum || *value > maximum) {
    std::ostringstream text;
    text << parts[2] << ": " << *value << " is not from " << minimum << " to " << maximum;
    return Refusal(text.str());
  }
  return entryStepOf(parts[0], [model = *model, bar = *bar, value = *value](EditSession& session, std::int32_t entry) {
    NoView view;
    ChannelEditor editor(session.slot, session.tool.settings, view);
    editor.chooseModel(model);
    editor.setCurrentEntry(entry);
    editor.changeChannel(bar, value);
  });
}

ParsedStep parseUseAsBlank(const std::string& argument) {
  return entryStepOf(argument, [](EditSession& session, std::int32_t entry) {
    useAsBlankColor(session.document(), entry, session.tool.settings);
  });
}

constexpr std::array<StepKind, 3> kSteps{{
    {"--set", "N=R,G,B", "Give entry N this color", parseSet},
    {"--channel", "N:MODEL:CHANNEL=VALUE",
     "Change one channel (left, middle, right, or its name) of entry N in a color model; the verb models lists them",
     parseChannel},
    {"--use-as-blank", "N", "Make the color of entry N the blank color of the following steps", parseUseAsBlank},
}};

}  // namespace

std::span<const StepKind> entrySteps() { return kSteps; }

}  // namespace quillhue::cli
