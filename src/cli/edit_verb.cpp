#include <iterator>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/input.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/output.h"
#include "cli/steps/step.h"
#include "cli/verbs.h"
#include "core/commands/statistics.h"

namespace quillhue::cli {

namespace {

struct WrittenStep {
  const StepKind* kind;
  // The option and its argument as written.
  std::string text;
  Step run;
};

struct EditOptions {
  std::string from;
  std::string to;
  InputOptions input;
  std::vector<WrittenStep> steps;
  OutputOptions output;
  bool json = false;
};

JsonObject editedJson(const EditOptions& options, const OutputFormat& format, const PaletteDocument& document) {
  const ColorCount count = countColors(document);
  JsonObject json = paletteJson(options.to, format.name, format.code, document.getPalette());
  return json.add("selected", selectedIndexes(document.getPalette()))
      .add("modificationCount", document.modificationCount())
      .add("canUndo", document.canUndo())
      .add("canRedo", document.canRedo())
      .add("different", JsonObject().add("palette", count.palette).add("selection", count.selection))
      .add("average", averageColor(document));
}

ExitStatus edit(const EditOptions& options, Console& console) {
  refuseJsonOnStandardOutput(options.json, options.to);
  const FormatChoice choice(options.output, options.input.standard, options.to, inputName(options.from, options.input));
  auto read = readFilePalette(options.from, options.input, console);
  if (!read) {
    return refuseFile({options.from, read.error()}, options.json, console);
  }
  EditSession session(std::move(read->palette), options.input, console);
  const StepKind* last = nullptr;
  for (const auto& [kind, text, run] : options.steps) {
    if (std::exchange(last, kind) != kind) {
      session.channels.reset();
    }
    if (const auto done = run(session); !done) {
      return refuseFile({options.from, text + ": " + done.error()}, options.json, console);
    }
    if (kind->modifies == nullptr) {
      session.modifiers = {};
    }
  }
  const PaletteDocument& document = session.document();
  const OutputFormat& format = choice.formatFor(read->format, document.getSize());
  const auto written = writePalette({options.from, options.to, format, session.tool.settings.blank, options.output},
                                    document.getPalette(), console);
  if (!written) {
    return refuseFile(written.error(), options.json, console);
  }
  if (options.json) {
    writeJson(console, editedJson(options, format, document));
  }
  return kDone;
}

// Keeps a step in its order. A modifier runs before the step that it follows.
void keepStep(WrittenStep step, std::vector<WrittenStep>& steps) {
  if (step.kind->modifies == nullptr) {
    steps.push_back(std::move(step));
    return;
  }
  if (steps.empty() || steps.back().kind->option != std::string_view(step.kind->modifies)) {
    refuseUsage(step.kind->option, std::string("goes directly after ") + step.kind->modifies);
  }
  steps.insert(std::prev(steps.end()), std::move(step));
}

// Adds an option whose steps keep their order on the command line.
void addStep(Verb& verb, const StepKind& kind, const std::shared_ptr<EditOptions>& options) {
  const auto keep = [options, &kind](const std::string& argument) {
    auto step = kind.parse(argument);
    if (!step) {
      refuseUsage(kind.option, step.error());
    }
    const std::string text = kind.argument == nullptr ? kind.option : kind.option + (' ' + argument);
    keepStep({&kind, text, *std::move(step)}, options->steps);
  };
  verb.addOrderedAction({kind.option, kind.argument == nullptr ? "" : kind.argument, kind.help, keep});
}

}  // namespace

void addEditVerb(CommandLine& tool, Console& console, ExitStatus& status) {
  Verb verb = tool.addVerb("edit", "Change a palette, step by step; see help edit STEP");
  const auto options = std::make_shared<EditOptions>();
  verb.addArgument("IN", options->from, "A palette or image file, or - for standard input");
  verb.addOutputArgument(options->to, "The file to write, or - for standard output");
  verb.addOption("--name FILE", options->input.name, "File name to assume for standard input");
  addOutputOptions(verb, options->output);
  addReadingFlags(verb, options->input.standard, console);
  verb.addFlag("--json", options->json, "Write JSON: the palette, selection and history");
  for (const StepGroup& group : stepGroups()) {
    verb.beginGroup(group.subject);
    for (const StepKind& kind : group.kinds()) {
      addStep(verb, kind, options);
    }
  }
  verb.setManual(
      "The steps run in the order of the command line. --undo reverts the last one that changed the selection, colors "
      "or size.\n\n"
      "    quillhue-cli edit sea.gpl sorted.gpl --sort hue\n\n");
  verb.onRun([options, &console, &status] { status = edit(*options, console); });
}

}  // namespace quillhue::cli
