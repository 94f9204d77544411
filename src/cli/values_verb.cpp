#include <iomanip>
#include <memory>
#include <numeric>
#include <sstream>

#include "cli/arguments.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/refusal.h"
#include "cli/tool_services.h"
#include "cli/verbs.h"
#include "colormodes/color_models.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(The verb models lists the color models with the names and ranges of their channels. The numbers are those that the steps
--channel and --shift of the verb edit change. In JSON, left, middle and right are the channels in the order of the
model, and each also appears by its name.

    quillhue-cli values sea.gpl --model HSL --entry 8-15
    quillhue-cli values sea.gpl --json

)";

struct ValuesOptions {
  std::string file;
  InputOptions input;
  // Color models to show; empty for all.
  std::vector<std::int32_t> models;
  std::optional<EntryList> entries;
  bool json = false;
};

void showEntry(const ColorModel& model, const ColorMode& mode, bool json, Console& console) {
  if (json) {
    JsonObject object;
    object.add("index", mode.entryIndex())
        .add("model", model.name)
        .add("left", mode.getLeftValue())
        .add("middle", mode.getMiddleValue())
        .add("right", mode.getRightValue());
    for (const Bar bar : kBars) {
      object.add(model.channels[static_cast<std::size_t>(bar)].name, mode.getValue(bar));
    }
    writeJson(console, object);
    return;
  }
  console.out << std::right << std::setw(4) << mode.entryIndex() << "  " << std::left << std::setw(5) << model.name;
  for (const Bar bar : kBars) {
    std::ostringstream text;
    text << model.channels[static_cast<std::size_t>(bar)].name << ' ' << mode.getValue(bar);
    console.out << "  " << std::setw(bar == Bar::right ? 0 : 14) << text.str();
  }
  console.out << '\n';
}

ExitStatus showValues(const ValuesOptions& options, Console& console) {
  auto read = readFilePalette(options.file, options.input, console);
  if (!read) {
    return refuseFile({options.file, read.error()}, options.json, console);
  }
  const std::int32_t size = read->palette.getSize();
  std::vector<std::int32_t> entries(static_cast<std::size_t>(size));
  std::iota(entries.begin(), entries.end(), 0);
  if (options.entries) {
    auto chosen = options.entries->within(size);
    if (!chosen) {
      return refuseFile({options.file, chosen.error()}, options.json, console);
    }
    entries = std::move(*chosen);
  }
  ToolServices tool(console);
  DocumentSlot slot;
  slot.replaceDocument({.palette = std::move(read->palette)}, tool.services);
  std::vector<std::unique_ptr<ColorMode>> modes(options.models.size());
  for (std::size_t i = 0; i < modes.size(); ++i) {
    createColorMode(options.models[i], 0, slot, modes[i]);
  }
  for (const std::int32_t entry : entries) {
    for (std::size_t i = 0; i < modes.size(); ++i) {
      modes[i]->setEntry(entry);
      showEntry(colorModelOf(options.models[i]), *modes[i], options.json, console);
    }
  }
  return kDone;
}

}  // namespace

void addValuesVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("values", "Show the entries of a palette in the color models");
  const auto options = std::make_shared<ValuesOptions>();
  options->models.resize(colorModels().size());
  std::iota(options->models.begin(), options->models.end(), 0);
  verb.addArgument("FILE", options->file, "A palette or image file, or - for standard input");
  verb.addOption("--name FILE", options->input.name, "File name to assume for standard input");
  verb.addAction({"--model", "NAME", "Show only this color model (default: all)", [options](const std::string& name) {
                    const auto model = placeOfAnyCase(namesOf(colorModels()), name);
                    if (!model) {
                      refuseUsage("--model", refusedName(name, namesOf(colorModels())));
                    }
                    options->models = {static_cast<std::int32_t>(*model)};
                  }});
  verb.addAction({"--entry", "LIST", "Show only these entries, as in 0-15,20", [options](const std::string& text) {
                    auto entries = EntryList::parse(text);
                    if (!entries) {
                      refuseUsage("--entry", entries.error());
                    }
                    options->entries = std::move(*entries);
                  }});
  addStandardFlag(verb, options->input.standard);
  verb.addFlag("--json", options->json, "Write JSON, one object a line for each entry and model");
  addMessageFlags(verb, console);
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] { status = showValues(*options, console); });
}

}  // namespace quillhue::cli
