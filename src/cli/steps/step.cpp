#include "cli/steps/step.h"

#include <algorithm>
#include <array>

namespace quillhue::cli {

EditSession::EditSession(Palette palette, const InputOptions& inputOptions, Console& toolConsole)
    : input(inputOptions), console(toolConsole), tool(toolConsole) {
  std::ranges::fill(palette.selected(), 1);
  slot.replaceDocument({.palette = std::move(palette)}, tool.services);
}

ParsedStep fileStepOf(const std::string& file,
                      std::function<StepResult(EditSession&, const std::vector<PaletteEntry>&)> use) {
  if (file == "-") {
    return Refusal("needs a file: standard input has no name");
  }
  return [file, use = std::move(use)](EditSession& session) -> StepResult {
    const auto read = readFilePalette(file, session.input, session.console);
    return read ? use(session, entriesOf(read->palette)) : Refusal(read.error());
  };
}

std::span<const StepGroup> stepGroups() {
  static constexpr std::array<StepGroup, 5> kGroups{{
      {"Choice", selectionSteps},
      {"Selected colors", colorSteps},
      {"Entries and channels", entrySteps},
      {"Whole entries", structureSteps},
      {"Clipboard and history", documentSteps},
  }};
  return kGroups;
}

}  // namespace quillhue::cli
