#include <iomanip>
#include <sstream>

#include "cli/json.h"
#include "cli/list_verb.h"
#include "cli/verbs.h"
#include "colormodes/color_models.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(Use a model with the verb values and with the steps --channel and --shift of the verb edit.

    quillhue-cli models
    quillhue-cli edit sea.gpl green.gpl --shift HSV:hue=+30

)";

JsonObject channelJson(const ChannelDescription& channel) {
  return JsonObject()
      .add("name", channel.name)
      .add("minimum", channel.range.minimum)
      .add("maximum", channel.range.maximum);
}

void showJson(Console& console) {
  for (const ColorModel* model : colorModels()) {
    const auto& [left, middle, right] = model->channels;
    writeJson(console, JsonObject()
                           .add("name", model->name)
                           .add("left", channelJson(left))
                           .add("middle", channelJson(middle))
                           .add("right", channelJson(right)));
  }
}

void showText(Console& console) {
  console.out << "Color models (name for --model; left, middle and right channel):\n";
  for (const ColorModel* model : colorModels()) {
    console.out << "  " << std::left << std::setw(7) << model->name;
    for (const ChannelDescription& channel : model->channels) {
      std::ostringstream text;
      text << channel.name << ' ' << channel.range.minimum << ".." << channel.range.maximum;
      const bool isLast = &channel == &model->channels.back();
      console.out << std::setw(isLast ? 0 : 20) << text.str();
    }
    console.out << '\n';
  }
}

}  // namespace

void addModelsVerb(CommandLine& tool, Console& console, ExitStatus& /*status*/) {
  addListVerb(tool, console,
              {
                  .name = "models",
                  .help = "List the color models: left, middle and right channel",
                  .jsonHelp = "Write JSON, one object a line for each model",
                  .manual = kManual,
                  .showText = showText,
                  .showJson = showJson,
              });
}

}  // namespace quillhue::cli
