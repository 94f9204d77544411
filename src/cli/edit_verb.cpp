#include <iterator>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/file_log.h"
#include "cli/input.h"
#include "cli/json.h"
#include "cli/notes.h"
#include "cli/output.h"
#include "cli/steps/step.h"
#include "cli/verbs.h"
#include "core/commands/statistics.h"

namespace quillhue::cli {

namespace {

constexpr const char* kManual =
    R"(The steps run in the order of the command line. OUT may be the same file as IN if --force is given. If a step is refused,
nothing is written.

Steps change the selected entries, at first all. --select chooses others by a list such as 0-15,20; redundant selects the
entries that repeat an earlier color; matches:N, brighter:N and darker:N compare with entry N; used:IMAGE and unused:IMAGE
ask which entries the pixels of an image use, as the verb usage counts them. A color is 255,128,0 or #FF8000 or #F80.

    quillhue-cli edit sea.gpl day.gpl --select 8-15 --effect brightness=20
    quillhue-cli edit sea.gpl clear.gpl --select unused:sprite.png --clear

--channels restricts the steps after it to some of red, green and blue. --swap ignores it. Without --descending, --sort
red sorts only if r is among the channels: otherwise it moves the entries whose red is 255 to the end, and reverses the
others. The same is true of green and blue.

    quillhue-cli edit sea.gpl warm.gpl --channels r --effect brightness=20
    quillhue-cli edit sea.gpl sorted.gpl --sort hue
    quillhue-cli edit sea.gpl light-first.gpl --sort oklab-lightness --descending

The effect negative=0 is the plain negative, and gamma with more than 100 darkens. The verb effects lists all effects.

--ramp fills the entries between two entries, whether they are selected or not. --depth rounds to the colors that
hardware shows: bits:R,G,B gives the bits of each channel.

    quillhue-cli edit sea.gpl ramp.gpl --set 8=#281018 --set 15=#FFD6AA --ramp 8-15 --space oklab
    quillhue-cli edit sea.gpl handheld.gpl --depth rgb555

--channel sets one number of one entry in a color model; the verb models lists the models. Several such steps in sequence,
for the same entry and model, keep the numbers exactly as set, although the color between them is rounded. --shift adds to
a number of each selected entry.

    quillhue-cli edit sea.gpl green.gpl --channel 3:HSV:hue=120 --channel 3:HSV:saturation=200
    quillhue-cli edit sea.gpl turned.gpl --select 16-23 --shift HSV:hue=+30

The other steps add, remove and move entries, and use a clipboard that --clipboard fills from a file.

    quillhue-cli edit sea.gpl both.gpl --append old.gpl --dedupe
    quillhue-cli edit sea.gpl order.gpl --move 8-15:0 --swap-entries 20,21
    quillhue-cli edit sea.gpl mixed.gpl --clipboard old.gpl --select 0-7 --paste

--undo reverts the last step that changed the selection, colors or size. It does not revert --channels, --blank,
--use-as-blank and what is on the clipboard.

)";

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
    JsonObject json = editedJson(options, format, document);
    writeJson(console, addFiles(json, console));
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
  addStandardFlag(verb, options->input.standard);
  verb.addFlag("--json", options->json, "Write JSON: the palette, selection and history");
  addMessageFlags(verb, console);
  for (const StepGroup& group : stepGroups()) {
    verb.beginBriefGroup(group.subject);
    for (const StepKind& kind : group.kinds()) {
      addStep(verb, kind, options);
    }
  }
  verb.setManual(kManual);
  verb.onRun([options, &console, &status] { status = edit(*options, console); });
}

}  // namespace quillhue::cli
