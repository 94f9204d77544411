#include <memory>
#include <utility>
#include <vector>

#include "cli/input.h"
#include "cli/json.h"
#include "cli/output.h"
#include "cli/steps/step.h"
#include "cli/verbs.h"
#include "core/commands/statistics.h"

namespace quillhue::cli {

namespace {

struct WrittenStep {
  const StepKind* kind;
  // The option and its argument.
  std::string text;
  Step run;
};

struct EditOptions {
  std::string from;
  std::string to;
  std::string name;
  std::vector<WrittenStep> steps;
  std::string format;
  bool force = false;
  bool json = false;
};

Json editedJson(const EditOptions& options, const PaletteWriter& writer, const PaletteDocument& document) {
  const ColorCount count = countColors(document);
  Json json = paletteJson(options.to, writer.name, writer.format, document.getPalette());
  json["selected"] = selectedIndexes(document.getPalette());
  json["modificationCount"] = document.modificationCount();
  json["canUndo"] = document.canUndo();
  json["canRedo"] = document.canRedo();
  json["different"] = {{"palette", count.palette}, {"selection", count.selection}};
  json["average"] = colorJson(averageColor(document));
  return json;
}

ExitStatus edit(const EditOptions& options, Console& console) {
  refuseJsonOnStandardOutput(options.json, options.to);
  const PaletteWriter& writer = chooseWriter(options.format, options.to);
  auto read = readFilePalette(options.from, options.name, console);
  if (!read) {
    return refuseFile({options.from, read.error()}, options.json, console);
  }
  EditSession session(std::move(read->palette), console);
  const StepKind* last = nullptr;
  for (const auto& [kind, text, run] : options.steps) {
    if (std::exchange(last, kind) != kind) {
      session.channels.reset();
    }
    if (const auto done = run(session); !done) {
      return refuseFile({options.from, text + ": " + done.error()}, options.json, console);
    }
  }
  const PaletteDocument& document = session.document();
  const auto written = writePalette(options.from, document.getPalette(), options.to, writer,
                                    session.tool.settings.blank, options.force, console);
  if (!written) {
    return refuseFile(written.error(), options.json, console);
  }
  if (options.json) {
    writeJson(console, editedJson(options, writer, document));
  }
  return kDone;
}

// Steps are kept in the order in which they are written.
void addStep(CLI::App& verb, const StepKind& kind, const std::shared_ptr<EditOptions>& options) {
  const auto keep = [options, &kind](const std::string& argument) {
    auto step = kind.parse(argument);
    if (!step) {
      throw CLI::ValidationError(kind.option, step.error());
    }
    const std::string text = kind.argument == nullptr ? kind.option : kind.option + (' ' + argument);
    options->steps.push_back({&kind, text, *std::move(step)});
  };
  CLI::Option* const option =
      kind.argument == nullptr
          ? verb.add_flag_callback(
                kind.option, [keep] { keep({}); }, kind.help)
          : verb.add_option_function<std::string>(kind.option, keep, kind.help)->type_name(kind.argument);
  // A flag takes no value, not even the parser's own "=false".
  option->disable_flag_override()->trigger_on_parse()->group("Steps, in the order in which they are written");
}

}  // namespace

void addEditVerb(CLI::App& tool, Console& console, ExitStatus& status) {
  CLI::App* const verb = tool.add_subcommand("edit", "Change a palette, step by step");
  const auto options = std::make_shared<EditOptions>();
  verb->add_option("IN", options->from, "The palette or image file to read, or - for standard input")->required();
  verb->add_option("OUT", options->to, "The file to write, or - for standard output")->required();
  verb->add_option("--name", options->name, "The file name that standard input is taken to have");
  addFormatOption(*verb, options->format);
  addForceFlag(*verb, options->force);
  verb->add_flag("--json", options->json, "Write JSON: the palette that was written, and what the steps left");
  for (const auto& kinds : {selectionSteps(), colorSteps(), documentSteps(), entrySteps()}) {
    for (const StepKind& kind : kinds) {
      addStep(*verb, kind, options);
    }
  }
  verb->callback([options, &console, &status] { status = edit(*options, console); });
}

}  // namespace quillhue::cli
